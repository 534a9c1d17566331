#include "demo/worksheet.h"

#include <array>
#include <cmath>

namespace
{

constexpr double margin = 60;
constexpr double lineHeight = 34;
constexpr int traceSteps = 120;

struct Colour {
    double red, green, blue;
};
constexpr Colour ink = {0.13, 0.14, 0.18};
constexpr Colour heading = {0.10, 0.30, 0.55};
constexpr Colour water = {0.25, 0.55, 0.85};
constexpr Colour grass = {0.40, 0.65, 0.30};
constexpr Colour rock = {0.55, 0.50, 0.47};
constexpr Colour sunlight = {0.98, 0.75, 0.15};
constexpr Colour faint = {0.62, 0.66, 0.72};

constexpr std::array<const char *, 8> lines = {"1. The sun warms the sea.",  "2. Water rises as vapour.",
                                               "3. High up it is cold, and", "    clouds are made.",
                                               "4. Rain and snow fall on",   "    the mountains.",
                                               "5. Rivers bring the water",  "    back to the sea."};

void use(cairo_t *cairo, const Colour &colour)
{
    cairo_set_source_rgb(cairo, colour.red, colour.green, colour.blue);
}

void text(cairo_t *cairo, double x, double y, double size, const char *words)
{
    cairo_set_font_size(cairo, size);
    cairo_move_to(cairo, x, y);
    cairo_show_text(cairo, words);
}

void circle(cairo_t *cairo, double x, double y, double radius)
{
    cairo_new_sub_path(cairo);
    cairo_arc(cairo, x, y, radius, 0, 2 * M_PI);
}

void arrow(cairo_t *cairo, double x, double y, double dx, double dy)
{
    constexpr double barb = 0.25;
    cairo_move_to(cairo, x, y);
    cairo_line_to(cairo, x + dx, y + dy);
    cairo_line_to(cairo, x + dx - barb * (dx + dy / 2), y + dy - barb * (dy - dx / 2));
    cairo_move_to(cairo, x + dx, y + dy);
    cairo_line_to(cairo, x + dx - barb * (dx - dy / 2), y + dy - barb * (dy + dx / 2));
    cairo_stroke(cairo);
}

void drawSun(cairo_t *cairo, double x, double y)
{
    constexpr int rays = 12;
    use(cairo, sunlight);
    circle(cairo, x, y, 32);
    cairo_fill(cairo);
    cairo_set_line_width(cairo, 4);
    for (int ray = 0; ray < rays; ++ray) {
        const double angle = 2 * M_PI * ray / rays;
        cairo_move_to(cairo, x + 40 * std::cos(angle), y + 40 * std::sin(angle));
        cairo_line_to(cairo, x + 54 * std::cos(angle), y + 54 * std::sin(angle));
    }
    cairo_stroke(cairo);
}

void drawCloud(cairo_t *cairo, double x, double y)
{
    use(cairo, faint);
    circle(cairo, x, y, 26);
    circle(cairo, x + 32, y - 14, 32);
    circle(cairo, x + 68, y, 26);
    cairo_rectangle(cairo, x, y, 68, 26);
    cairo_fill(cairo);
    use(cairo, water);
    cairo_set_line_width(cairo, 3);
    for (int drop = 0; drop < 5; ++drop) {
        cairo_move_to(cairo, x + 4 + drop * 16, y + 38);
        cairo_line_to(cairo, x - 4 + drop * 16, y + 62);
    }
    cairo_stroke(cairo);
}

void drawLand(cairo_t *cairo, double width, double height)
{
    const double sea = height * 0.72;
    use(cairo, water);
    cairo_rectangle(cairo, 0, sea, width, height - sea);
    cairo_fill(cairo);
    use(cairo, rock);
    cairo_move_to(cairo, width * 0.50, height);
    cairo_line_to(cairo, width * 0.72, height * 0.34);
    cairo_line_to(cairo, width * 0.80, height * 0.48);
    cairo_line_to(cairo, width * 0.88, height * 0.38);
    cairo_line_to(cairo, width, height * 0.60);
    cairo_line_to(cairo, width, height);
    cairo_fill(cairo);
    use(cairo, grass);
    cairo_move_to(cairo, width * 0.44, height);
    cairo_curve_to(cairo, width * 0.58, height * 0.70, width * 0.80, height * 0.74, width, height * 0.78);
    cairo_line_to(cairo, width, height);
    cairo_fill(cairo);
}

void drawWaterCycle(cairo_t *cairo, double x, double y, double width, double height)
{
    cairo_save(cairo);
    cairo_translate(cairo, x, y);
    drawLand(cairo, width, height);
    drawSun(cairo, width * 0.08 + 55, height * 0.23);
    drawCloud(cairo, width * 0.60, height * 0.19);
    use(cairo, heading);
    cairo_set_line_width(cairo, 5);
    for (double start : {0.16, 0.26, 0.36})
        arrow(cairo, width * start, height * 0.66, width * 0.04, -height * 0.24);
    use(cairo, ink);
    cairo_set_line_width(cairo, 3);
    cairo_rectangle(cairo, 0, 0, width, height);
    cairo_stroke(cairo);
    text(cairo, width * 0.06, height * 0.88, 26, "sea");
    text(cairo, width * 0.66, height * 0.92, 26, "meadow");
    cairo_restore(cairo);
}

void drawTrace(cairo_t *cairo, const TraceFrame &frame)
{
    constexpr std::array<double, 2> dashes = {12, 8};
    use(cairo, ink);
    text(cairo, frame.x, frame.y - 16, 26, "Follow the line:");
    cairo_save(cairo);
    use(cairo, water);
    cairo_set_line_width(cairo, 5);
    cairo_set_dash(cairo, dashes.data(), int(dashes.size()), 0);
    // The text left a point from which the line would start.
    cairo_new_path(cairo);
    for (int step = 0; step < traceSteps; ++step) {
        double x = 0;
        double y = 0;
        pointOfTrace(frame, double(step) / traceSteps, &x, &y);
        cairo_line_to(cairo, x, y);
    }
    cairo_close_path(cairo);
    cairo_stroke(cairo);
    cairo_restore(cairo);
}

} // namespace

TraceFrame traceFrame(double pageWidth)
{
    return {margin, 560, pageWidth - 2 * margin, 170};
}

void pointOfTrace(const TraceFrame &frame, double turn, double *x, double *y)
{
    const double angle = 2 * M_PI * turn;
    *x = frame.x + frame.width * (0.5 + 0.46 * std::sin(angle));
    *y = frame.y + frame.height * (0.5 + 0.46 * std::sin(2 * angle));
}

void drawWorksheet(cairo_t *cairo, double pageWidth)
{
    const double column = 350;
    use(cairo, heading);
    cairo_select_font_face(cairo, "serif", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_BOLD);
    text(cairo, margin, 96, 56, "The way of the water");
    cairo_rectangle(cairo, margin, 116, pageWidth - 2 * margin, 4);
    cairo_fill(cairo);
    use(cairo, ink);
    cairo_select_font_face(cairo, "serif", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    double y = 180;
    for (const char *line : lines) {
        text(cairo, margin, y, 27, line);
        y += lineHeight;
    }
    drawWaterCycle(cairo, margin + column, 150, pageWidth - 2 * margin - column, 320);
    drawTrace(cairo, traceFrame(pageWidth));
}
