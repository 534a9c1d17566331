#pragma once

#include "platform/soundformat.h"

#include <QtGlobal>

// When a microphone's frames were captured, on our clock rather than on its own. Frames come late, by their
// driver's pieces and now and then by a burst of half a second, but never early: of each second the piece
// with the least delay counts, and a line that follows these pieces tells the rate.
class SoundClock
{
public:
    // The frames up to this one, counted from the first, have come at this moment, in seconds. False when
    // they do not go on from the frames before: some between were lost.
    bool note(qint64 frames, double arrival);

    // When this frame was captured, in seconds. After note().
    double captured(double frame) const;
    // The time from one frame to the next.
    double secondsPerFrame() const { return m_secondsPerFrame; }

private:
    bool follow();

    // The line: this frame was captured at this moment.
    qint64 m_frame = 0;
    double m_moment = 0;
    double m_secondsPerFrame = 1.0 / soundRate;

    int m_rounds = 0; // that the line follows
    double m_roundEnd = 0;
    double m_leastDelay = 0; // of this round's pieces, against the line
    qint64 m_leastDelayed = 0;
};
