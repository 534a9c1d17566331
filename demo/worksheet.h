// The worksheet on the demo's desk.
#pragma once

#include <cairo.h>

// The line that the pencil follows lies in this frame, in page units.
struct TraceFrame {
    double x, y, width, height;
};

constexpr double worksheetHeight = 800;

TraceFrame traceFrame(double pageWidth);
// Onto a page whose top left corner is the origin.
void drawWorksheet(cairo_t *cairo, double pageWidth);
// A lying eight; turn goes from 0 to 1 once round.
void pointOfTrace(const TraceFrame &frame, double turn, double *x, double *y);
