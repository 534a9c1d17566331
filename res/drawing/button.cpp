#include "res/drawing/button.h"

#include "res/drawing/svg.h"

#include <QPainter>

namespace
{

// In pixels at a scale of 1.
constexpr int push = 2; // how far a pressed pictogram moves down

// The pictogram in dull greys, light parts still lighter than dark ones.
QImage greyed(const QImage &coloured)
{
    constexpr int darkest = 0x38;
    constexpr int lightest = 0x96;
    QImage grey = coloured.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < grey.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(grey.scanLine(y));
        for (int x = 0; x < grey.width(); ++x) {
            const int level = darkest + qGray(line[x]) * (lightest - darkest) / 255;
            line[x] = qRgba(level, level, level, qAlpha(line[x]));
        }
    }
    return grey;
}

// A caption lies over the right three fifths.
QRect pictogramArea(const QSize &button)
{
    constexpr int sideMargin = 6;
    constexpr int plateBorder = plateGap + plateEdge + push;
    const int width = button == tileButtonSize ? button.width() : button.width() * 2 / 5;
    // The drawings keep a twelfth of their side free all around, which may lie over the plate's edge.
    const int side = qMin(width - 2 * sideMargin, (button.height() - 2 * plateBorder) * 12 / 10);
    return {(width - side) / 2, (button.height() - side) / 2, side, side};
}

} // namespace

QImage drawButton(const QString &drawing, const QSize &size, PlateState state, qreal scale)
{
    const QRect area = pictogramArea(size);
    const QImage pictogram = drawSvg(drawing, qMax(1, qRound(area.width() * scale)));
    if (pictogram.isNull())
        return {};
    QImage picture(size * scale, QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    drawPlate(painter, picture.rect(), state, scale);
    const QPoint pushed = area.topLeft() + QPoint(0, state == PlateState::Down ? push : 0);
    painter.drawImage((QPointF(pushed) * scale).toPoint(),
                      state == PlateState::Disabled ? greyed(pictogram) : pictogram);
    return picture;
}
