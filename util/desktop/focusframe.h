#pragma once

#include <Qt>

class QPainter;
class QRectF;

// Whether the focus came by key. Who presses with mouse or pen sees what was pressed; only who moves by
// keyboard needs to see where he is.
bool isByKeyboard(Qt::FocusReason reason);

// Frames what has the focus, just inside the area: bright on dark, so that it is seen on any picture and from
// the back of a room.
void paintFocusFrame(QPainter &painter, const QRectF &area);

// The same for the small controls of a dialog.
void paintSlimFocusFrame(QPainter &painter, const QRectF &area);

// Frames the area in one colour, just inside it.
void paintFrame(QPainter &painter, const QRectF &area, qreal width, unsigned int rgb);

// How wide the focus frame is.
constexpr int focusFrameWidth = 7;
