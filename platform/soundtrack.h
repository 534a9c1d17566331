#pragma once

#include "platform/soundclock.h"
#include "platform/soundstretcher.h"

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <vector>

// The sound of a movie: a microphone's frames, each where it belongs by our clock, and silence where none
// come. The frames go on as soon as they come. Only when none have come for three quarters of a second does
// silence stand in, so bursts leave no holes; and the speed is adapted, so a microphone whose clock is fast
// or slow stays beside the picture without a seam. Frames are as in platform/soundformat.h, moments in
// seconds from the movie's start. Any thread.
class SoundTrack
{
public:
    // Is given the track piece by piece, one thread at a time; `first` is how many frames came before.
    using Writer = std::function<void(const std::vector<float> &frames, qint64 first)>;

    // The track begins at this moment.
    SoundTrack(double begin, Writer writer);

    // Adds frames of the microphone, the last of which has come at this moment.
    void add(const float *frames, size_t count, double arrival);
    // What is added next does not go on from what was added before: frames were lost, or it is of another
    // microphone.
    void breakOff();
    // Silence for what has not come by now. To be called several times a second.
    void fill(double now);
    // The longest time in which no microphone gave sound, up to now.
    double longestGap(double now) const;

    // The track ends at this moment; frames are still taken up to it.
    void endAt(double moment);
    // Waits until all that belongs before the end has come, for that time at most. After endAt().
    void waitForLast(std::chrono::milliseconds limit);
    // Ends it with what has come and silence. After endAt().
    void close();

private:
    enum class State {
        Waiting,  // for a microphone
        Learning, // when its frames were captured
        Playing
    };

    void begin(double arrival);
    void place();
    void play();
    void write(std::vector<float> frames);
    void writeSilence(double until);
    double reached() const;
    static qint64 framesIn(double seconds);
    bool hasLast() const;
    void waitForBurst(std::unique_lock<std::mutex> *lock);

    const double m_begin;
    const Writer m_writer;

    mutable std::mutex m_mutex; // guards all below, and is held while the writer is called
    std::condition_variable m_added;
    State m_state = State::Waiting;
    SoundClock m_clock;
    SoundStretcher m_stretcher;
    qint64 m_came = 0;     // frames since the microphone began
    double m_began = 0;    // when the first of them came
    double m_lastCame = 0; // of any microphone, as the next
    double m_longestGap = 0;
    qint64 m_written = 0;
    qint64 m_end; // frames of the whole track
};
