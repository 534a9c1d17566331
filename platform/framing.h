#pragma once

#include "platform/turn.h"
#include "platform/zoom.h"

// What of the camera's picture is shown, and which way up: on the screen, in photos and in movies alike.
struct Framing {
    Zoom zoom; // of the camera's picture, before it is turned
    Turn turn;

    bool isNone() const { return zoom.isNone() && turn.isNone(); }
    // Of a picture of that size, as it is shown when there is room for all of its pixels.
    QSize shownSize(const QSize &picture) const { return turn.turned(picture); }
    QRect shownPart(const QSize &picture) const { return zoom.shownPart(picture); }
};
