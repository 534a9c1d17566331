#pragma once

#include <QRect>
#include <QVector>

// The places of count photos, up to nine, side by side within area, row by row: up to three in one row, four
// in two rows of two, more in rows of three.
QVector<QRect> gridTiles(const QRect &area, int count);
