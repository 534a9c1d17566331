// What the demo camera looks down on: a worksheet on a desk, a clock beside it, and a pencil that follows a
// line.
#pragma once

#include <cairo.h>
#include <ctime>
#include <memory>

struct FreeCairo {
    void operator()(cairo_t *cairo) const { cairo_destroy(cairo); }
    void operator()(cairo_surface_t *surface) const { cairo_surface_destroy(surface); }
};
using Cairo = std::unique_ptr<cairo_t, FreeCairo>;
using Surface = std::unique_ptr<cairo_surface_t, FreeCairo>;

// Opaque, for drawing in RGB.
Surface newSurface(int width, int height);

struct PixelRect {
    int x, y, width, height;
};

class DeskScene
{
public:
    // Of a picture of that many pixels.
    DeskScene(int width, int height);

    // Everything that stands still.
    void drawStill(cairo_t *cairo) const;
    // The hands and the figures, over the still part.
    void drawTime(cairo_t *cairo, const std::tm &time) const;
    // The pencil at this moment of its round, with its shadow.
    void drawPencil(cairo_t *cairo, double seconds) const;

    // The pixels that drawTime() and drawPencil() touch. The pencil's size never changes.
    PixelRect clockArea() const;
    PixelRect pencilArea(double seconds) const;

private:
    struct Point {
        double x, y;
    };
    void drawDesk(cairo_t *cairo) const;
    void drawPage(cairo_t *cairo) const;
    void drawClockFace(cairo_t *cairo) const;
    void scale(cairo_t *cairo) const;
    void toPage(cairo_t *cairo) const;
    Point pencilTip(double seconds) const;

    // Lengths below and in the drawing are in units of which the picture is 900 high.
    double m_pixelsPerUnit;
    double m_width;
    double m_pageWidth;
};
