#include "platform/soundtrack.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace
{

// A first burst tells with its last piece only when its first one was captured.
constexpr double learningTime = 0.6;
// What is ahead or behind is brought back in about this time, by not more than a trained ear bears.
constexpr double returnTime = 1;
constexpr double mostHaste = 0.01;
// The pieces of a burst come at once, each of which puts the first one earlier than those before it did.
constexpr std::chrono::milliseconds longestWithinBurst(30);
constexpr double leastWithinBurst = 0.002;

} // namespace

SoundTrack::SoundTrack(double begin, Writer writer)
    : m_begin(begin), m_writer(std::move(writer)), m_end(std::numeric_limits<qint64>::max())
{
}

void SoundTrack::add(const float *frames, size_t count, double arrival)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_longestGap = std::max(m_longestGap, arrival - m_lastCame);
    m_lastCame = arrival;
    if (m_state == State::Waiting)
        begin(arrival);
    m_came += qint64(count);
    if (!m_clock.note(m_came, arrival)) {
        begin(arrival);
        m_came = qint64(count);
        m_clock.note(m_came, arrival);
    }
    m_stretcher.put(frames, count);
    if (m_state == State::Learning && arrival - m_began >= learningTime)
        place();
    if (m_state == State::Playing)
        play();
    m_added.notify_all();
}

void SoundTrack::breakOff()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_state == State::Learning)
        place();
    if (m_state == State::Playing)
        play();
    m_state = State::Waiting;
}

void SoundTrack::begin(double arrival)
{
    m_state = State::Learning;
    m_clock = SoundClock();
    m_stretcher = SoundStretcher();
    m_came = 0;
    m_began = arrival;
}

// Puts the first frame where it belongs: silence before it, or without those whose place is taken already.
void SoundTrack::place()
{
    const double first = m_clock.captured(0);
    writeSilence(first);
    m_stretcher.skip(std::max(0.0, (reached() - first) / m_clock.secondsPerFrame()));
    m_state = State::Playing;
}

void SoundTrack::play()
{
    const double behind = reached() - m_clock.captured(m_stretcher.place());
    const double haste = std::clamp(behind / returnTime, -mostHaste, mostHaste);
    std::vector<float> frames;
    m_stretcher.take((1 + haste) / (m_clock.secondsPerFrame() * soundRate), &frames);
    write(std::move(frames));
}

void SoundTrack::fill(double now)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_state == State::Learning && now - m_began > mostSoundDelay) {
        place();
        play();
    }
    double until = now - mostSoundDelay;
    if (m_state == State::Learning)
        until = std::min(until, m_clock.captured(0));
    if (until <= reached())
        return;
    writeSilence(until);
    if (m_state == State::Playing)
        m_state = State::Waiting;
}

double SoundTrack::longestGap(double now) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return std::max(m_longestGap, now - m_lastCame);
}

void SoundTrack::endAt(double moment)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_end = std::max<qint64>(0, framesIn(moment - m_begin));
}

void SoundTrack::waitForLast(std::chrono::milliseconds limit)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    if (m_added.wait_for(lock, limit, [this] { return hasLast(); }))
        waitForBurst(&lock);
}

void SoundTrack::waitForBurst(std::unique_lock<std::mutex> *lock)
{
    bool goesOn = true;
    while (m_state == State::Learning && goesOn) {
        const double first = m_clock.captured(0);
        const qint64 came = m_came;
        goesOn = m_added.wait_for(*lock, longestWithinBurst, [&] { return m_came != came; }) &&
                 first - m_clock.captured(0) > leastWithinBurst;
    }
}

bool SoundTrack::hasLast() const
{
    if (m_state == State::Learning)
        return framesIn(m_clock.captured(double(m_came)) - m_begin) >= m_end;
    return m_written >= m_end;
}

void SoundTrack::close()
{
    breakOff();
    const std::lock_guard<std::mutex> lock(m_mutex);
    writeSilence(m_begin + double(m_end) / soundRate);
}

void SoundTrack::writeSilence(double until)
{
    // In pieces: a writer may keep what it is given.
    for (qint64 left = framesIn(until - reached()); left > 0; left -= soundRate)
        write(std::vector<float>(size_t(std::min<qint64>(left, soundRate)) * soundChannels));
}

void SoundTrack::write(std::vector<float> frames)
{
    const qint64 left = std::max<qint64>(0, m_end - m_written);
    frames.resize(size_t(std::min(left, qint64(frames.size() / soundChannels))) * soundChannels);
    if (!frames.empty())
        m_writer(frames, m_written);
    m_written += qint64(frames.size() / soundChannels);
}

// The moment up to which the track is written.
double SoundTrack::reached() const
{
    return m_begin + double(m_written) / soundRate;
}

qint64 SoundTrack::framesIn(double seconds)
{
    return std::llround(seconds * soundRate);
}
