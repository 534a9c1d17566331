#include "demo/deskscene.h"
#include "demo/worksheet.h"

#include <array>
#include <cmath>

namespace
{

constexpr double sceneHeight = 900;
constexpr double pageLeft = 50;
constexpr double pageTop = 55;
constexpr double pageTilt = -0.014; // radians: nobody lays a page down straight
constexpr double clockColumn = 330;
constexpr double clockRadius = 120;
constexpr double clockY = 210;
constexpr double pencilLength = 260;
constexpr double pencilThickness = 22;
constexpr double pencilAngle = -0.9; // radians, as a right hand holds it
constexpr double pencilRound = 8;    // seconds for once round the line
constexpr double shadowDistance = 10;

void roundedRect(cairo_t *cairo, double x, double y, double width, double height, double radius)
{
    cairo_new_sub_path(cairo);
    cairo_arc(cairo, x + width - radius, y + radius, radius, -M_PI_2, 0);
    cairo_arc(cairo, x + width - radius, y + height - radius, radius, 0, M_PI_2);
    cairo_arc(cairo, x + radius, y + height - radius, radius, M_PI_2, M_PI);
    cairo_arc(cairo, x + radius, y + radius, radius, M_PI, 3 * M_PI_2);
    cairo_close_path(cairo);
}

// Several faint, ever larger copies look like a soft edge.
void softShadow(cairo_t *cairo, double x, double y, double width, double height)
{
    cairo_set_source_rgba(cairo, 0, 0, 0, 0.05);
    for (int spread = 0; spread <= 14; spread += 2) {
        roundedRect(cairo, x - spread + 6, y - spread + 10, width + 2 * spread, height + 2 * spread,
                    4 + spread);
        cairo_fill(cairo);
    }
}

// From the centre of a clock, turn 0 to 1 from the top, clockwise.
void drawHand(cairo_t *cairo, double turn, double length, double thickness)
{
    const double angle = 2 * M_PI * turn;
    cairo_set_line_width(cairo, thickness);
    cairo_move_to(cairo, 0, 0);
    cairo_line_to(cairo, length * std::sin(angle), -length * std::cos(angle));
    cairo_stroke(cairo);
}

// Tip at the origin, lying along the positive x axis.
void pencilOutline(cairo_t *cairo)
{
    cairo_move_to(cairo, 0, 0);
    cairo_line_to(cairo, 40, -pencilThickness / 2);
    cairo_line_to(cairo, pencilLength, -pencilThickness / 2);
    cairo_line_to(cairo, pencilLength, pencilThickness / 2);
    cairo_line_to(cairo, 40, pencilThickness / 2);
    cairo_close_path(cairo);
}

void drawPencilBody(cairo_t *cairo)
{
    pencilOutline(cairo);
    cairo_set_source_rgb(cairo, 0.90, 0.76, 0.56);
    cairo_fill(cairo);
    cairo_rectangle(cairo, 40, -pencilThickness / 2, pencilLength - 40, pencilThickness);
    cairo_set_source_rgb(cairo, 0.93, 0.62, 0.12);
    cairo_fill(cairo);
    cairo_rectangle(cairo, 40, -pencilThickness / 6, pencilLength - 40, pencilThickness / 3);
    cairo_set_source_rgb(cairo, 0.98, 0.74, 0.28);
    cairo_fill(cairo);
    cairo_rectangle(cairo, pencilLength - 45, -pencilThickness / 2, 15, pencilThickness);
    cairo_set_source_rgb(cairo, 0.72, 0.74, 0.76);
    cairo_fill(cairo);
    cairo_rectangle(cairo, pencilLength - 30, -pencilThickness / 2, 30, pencilThickness);
    cairo_set_source_rgb(cairo, 0.85, 0.38, 0.42);
    cairo_fill(cairo);
    cairo_move_to(cairo, 0, 0);
    cairo_line_to(cairo, 14, -pencilThickness * 0.175);
    cairo_line_to(cairo, 14, pencilThickness * 0.175);
    cairo_set_source_rgb(cairo, 0.15, 0.15, 0.17);
    cairo_fill(cairo);
}

} // namespace

Surface newSurface(int width, int height)
{
    return Surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height));
}

DeskScene::DeskScene(int width, int height)
    : m_pixelsPerUnit(height / sceneHeight), m_width(width / m_pixelsPerUnit),
      m_pageWidth(m_width - pageLeft - clockColumn)
{
}

void DeskScene::scale(cairo_t *cairo) const
{
    cairo_scale(cairo, m_pixelsPerUnit, m_pixelsPerUnit);
}

void DeskScene::toPage(cairo_t *cairo) const
{
    scale(cairo);
    cairo_translate(cairo, pageLeft, pageTop);
    cairo_rotate(cairo, pageTilt);
}

void DeskScene::drawStill(cairo_t *cairo) const
{
    drawDesk(cairo);
    drawPage(cairo);
    drawClockFace(cairo);
}

void DeskScene::drawDesk(cairo_t *cairo) const
{
    constexpr int planks = 6;
    cairo_save(cairo);
    scale(cairo);
    for (int plank = 0; plank < planks; ++plank) {
        const double shade = 0.05 * (plank * 5 % 3);
        cairo_set_source_rgb(cairo, 0.50 + shade, 0.36 + shade, 0.25 + shade);
        cairo_rectangle(cairo, 0, plank * sceneHeight / planks, m_width, sceneHeight / planks);
        cairo_fill(cairo);
        cairo_set_source_rgba(cairo, 0, 0, 0, 0.25);
        cairo_rectangle(cairo, 0, plank * sceneHeight / planks, m_width, 2);
        cairo_fill(cairo);
    }
    cairo_restore(cairo);
}

void DeskScene::drawPage(cairo_t *cairo) const
{
    cairo_save(cairo);
    toPage(cairo);
    softShadow(cairo, 0, 0, m_pageWidth, worksheetHeight);
    cairo_rectangle(cairo, 0, 0, m_pageWidth, worksheetHeight);
    cairo_set_source_rgb(cairo, 0.97, 0.96, 0.93);
    cairo_fill(cairo);
    drawWorksheet(cairo, m_pageWidth);
    cairo_restore(cairo);
}

void DeskScene::drawClockFace(cairo_t *cairo) const
{
    constexpr int hours = 12;
    cairo_save(cairo);
    scale(cairo);
    cairo_translate(cairo, m_width - clockColumn / 2, clockY);
    softShadow(cairo, -clockRadius, -clockRadius, 2 * clockRadius, 2 * clockRadius + 110);
    roundedRect(cairo, -clockRadius - 15, -clockRadius - 15, 2 * clockRadius + 30, 2 * clockRadius + 130, 24);
    cairo_set_source_rgb(cairo, 0.16, 0.30, 0.42);
    cairo_fill(cairo);
    cairo_arc(cairo, 0, 0, clockRadius, 0, 2 * M_PI);
    cairo_set_source_rgb(cairo, 0.98, 0.98, 0.96);
    cairo_fill(cairo);
    cairo_set_source_rgb(cairo, 0.15, 0.16, 0.20);
    cairo_set_line_width(cairo, 5);
    for (int hour = 0; hour < hours; ++hour) {
        const double angle = 2 * M_PI * hour / hours;
        const double inner = clockRadius * (hour % 3 == 0 ? 0.78 : 0.86);
        cairo_move_to(cairo, inner * std::sin(angle), -inner * std::cos(angle));
        cairo_line_to(cairo, 0.94 * clockRadius * std::sin(angle), -0.94 * clockRadius * std::cos(angle));
    }
    cairo_stroke(cairo);
    cairo_restore(cairo);
}

void DeskScene::drawTime(cairo_t *cairo, const std::tm &time) const
{
    cairo_save(cairo);
    scale(cairo);
    cairo_translate(cairo, m_width - clockColumn / 2, clockY);
    cairo_set_line_cap(cairo, CAIRO_LINE_CAP_ROUND);
    cairo_set_source_rgb(cairo, 0.15, 0.16, 0.20);
    drawHand(cairo, (time.tm_hour % 12 + time.tm_min / 60.0) / 12, clockRadius * 0.52, 10);
    drawHand(cairo, (time.tm_min + time.tm_sec / 60.0) / 60, clockRadius * 0.76, 7);
    cairo_set_source_rgb(cairo, 0.82, 0.18, 0.16);
    drawHand(cairo, time.tm_sec / 60.0, clockRadius * 0.84, 3);
    std::array<char, sizeof "HH:MM:SS"> figures = {};
    std::strftime(figures.data(), figures.size(), "%H:%M:%S", &time);
    cairo_select_font_face(cairo, "monospace", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_BOLD);
    cairo_set_font_size(cairo, 48);
    cairo_text_extents_t extents;
    cairo_text_extents(cairo, figures.data(), &extents);
    cairo_set_source_rgb(cairo, 1, 1, 1);
    cairo_move_to(cairo, -extents.x_advance / 2, clockRadius + 78);
    cairo_show_text(cairo, figures.data());
    cairo_restore(cairo);
}

void DeskScene::drawPencil(cairo_t *cairo, double seconds) const
{
    const Point tip = pencilTip(seconds);
    cairo_save(cairo);
    cairo_translate(cairo, tip.x, tip.y);
    scale(cairo);
    cairo_save(cairo);
    cairo_translate(cairo, shadowDistance, shadowDistance);
    cairo_rotate(cairo, pencilAngle);
    pencilOutline(cairo);
    cairo_set_source_rgba(cairo, 0, 0, 0, 0.22);
    cairo_fill(cairo);
    cairo_restore(cairo);
    cairo_rotate(cairo, pencilAngle);
    drawPencilBody(cairo);
    cairo_restore(cairo);
}

DeskScene::Point DeskScene::pencilTip(double seconds) const
{
    double x = 0;
    double y = 0;
    pointOfTrace(traceFrame(m_pageWidth), std::fmod(seconds / pencilRound, 1), &x, &y);
    cairo_matrix_t page;
    cairo_matrix_init_scale(&page, m_pixelsPerUnit, m_pixelsPerUnit);
    cairo_matrix_translate(&page, pageLeft, pageTop);
    cairo_matrix_rotate(&page, pageTilt);
    cairo_matrix_transform_point(&page, &x, &y);
    return {x, y};
}

PixelRect DeskScene::clockArea() const
{
    const auto pixels = [this](double units) { return int(units * m_pixelsPerUnit); };
    return {pixels(m_width - clockColumn), pixels(clockY - clockRadius), pixels(clockColumn),
            pixels(2 * clockRadius + 110)};
}

PixelRect DeskScene::pencilArea(double seconds) const
{
    // The tip is at the lower left, the rest reaches up and to the right by less than the pencil's length.
    const double around = (pencilThickness + shadowDistance) * m_pixelsPerUnit;
    const double reach = pencilLength * m_pixelsPerUnit;
    const Point tip = pencilTip(seconds);
    return {int(tip.x - around), int(tip.y - reach), int(reach + 2 * around), int(reach + around)};
}
