#include "res/drawing/plate.h"

#include <QLinearGradient>
#include <QPainter>

PlateColours plateColours(PlateState state)
{
    switch (state) {
    case PlateState::Down:
        return {QColor(0x1f63c9), QColor(0x3f8df0), QColor(0xffffff)};
    case PlateState::Disabled:
        return {QColor(0x4a4a4d), QColor(0x4a4a4d), QColor(0x626266)};
    case PlateState::Up:
        break;
    }
    return {QColor(0x3a4d78), QColor(0x1d2947), QColor(0x7088bd)};
}

void drawPlate(QPainter &painter, const QRectF &area, PlateState state, qreal scale)
{
    constexpr qreal radius = 10;
    const qreal inset = (plateGap + plateEdge / 2.0) * scale;
    const QRectF plate = area.adjusted(inset, inset, -inset, -inset);
    const PlateColours colours = plateColours(state);
    QLinearGradient shade(plate.topLeft(), plate.bottomLeft());
    shade.setColorAt(0, colours.top);
    shade.setColorAt(1, colours.bottom);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(shade);
    painter.setPen(QPen(colours.edge, plateEdge * scale));
    painter.drawRoundedRect(plate, radius * scale, radius * scale);
}
