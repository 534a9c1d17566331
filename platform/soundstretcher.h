#pragma once

#include <QtGlobal>

#include <vector>

// Takes sound and gives it a little faster or slower, without a seam where the speed changes. Frames are as
// in platform/soundformat.h.
class SoundStretcher
{
public:
    SoundStretcher();

    void put(const float *frames, size_t count);
    // Appends every frame that can be made of what was put: each lies `step` frames of the input behind the
    // one before.
    void take(double step, std::vector<float> *frames);
    // Leaves out so many frames of the input, of those that are still to come too.
    void skip(double frames) { m_place += frames; }

    // Which frame of the input, counted from the first, comes next.
    double place() const { return double(m_dropped) + m_place; }

private:
    void drop();

    std::vector<float> m_input; // with what lies before the next frame and is mixed into it
    qint64 m_dropped = 0;       // frames
    double m_place = 0;         // of the next frame in the input, without what lies before it
};
