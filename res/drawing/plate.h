#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

// The plate that every button of the program is, whether it carries a pictogram or only a word.

enum class PlateState { Up, Down, Disabled };

struct PlateColours {
    QColor top, bottom; // the shading
    QColor edge;
};

// White captions are readable on each of them. A pressed plate is lit and shaded the other way round.
PlateColours plateColours(PlateState state);

// Sizes at a scale of 1, in pixels. The gap keeps neighbours apart, the edge is wide enough to be seen from
// the back of a room.
constexpr int plateGap = 2;
constexpr int plateEdge = 3;

// Fills the area, to which it leaves a gap all around.
void drawPlate(QPainter &painter, const QRectF &area, PlateState state, qreal scale);
