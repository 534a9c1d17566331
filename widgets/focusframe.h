#pragma once

#include <Qt>

class QPainter;
class QRect;

// Whether the focus came by key. Who presses with mouse or pen sees what was pressed; only who moves by
// keyboard needs to see where he is.
bool isByKeyboard(Qt::FocusReason reason);

// Frames what has the focus, just inside the area: bright on dark, so that it is seen on any picture and from
// the back of a room.
void paintFocusFrame(QPainter &painter, const QRect &area);
