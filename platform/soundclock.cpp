#include "platform/soundclock.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace
{

constexpr double roundSeconds = 1;
// The line follows so many rounds: more of them steady it against late pieces, fewer let it learn a rate
// sooner.
constexpr int fewestRounds = 3;
constexpr int mostRounds = 10;
// No microphone's clock is further off.
constexpr double mostRateError = 0.02;
// Bursts come and go within a round; a whole round that is this far off tells of lost frames.
constexpr double mostDelay = 0.25;

constexpr double noDelay = std::numeric_limits<double>::max();

} // namespace

bool SoundClock::note(qint64 frames, double arrival)
{
    if (m_rounds == 0) {
        m_frame = frames;
        m_moment = arrival;
        m_roundEnd = arrival + roundSeconds;
        m_leastDelay = noDelay;
        m_rounds = 1;
    }
    const double delay = arrival - captured(double(frames));
    if (m_rounds == 1)
        m_moment += std::min(delay, 0.0);
    if (delay < m_leastDelay) {
        m_leastDelay = delay;
        m_leastDelayed = frames;
    }
    return arrival < m_roundEnd || follow();
}

double SoundClock::captured(double frame) const
{
    return m_moment + (frame - double(m_frame)) * m_secondsPerFrame;
}

// The gains are those of the straight line through the last rounds that has the least squared error.
bool SoundClock::follow()
{
    const double delay = std::exchange(m_leastDelay, noDelay);
    m_roundEnd += roundSeconds;
    if (std::exchange(m_rounds, std::clamp(m_rounds + 1, fewestRounds, mostRounds)) == 1)
        return true;
    const double rounds = m_rounds;
    m_moment = captured(double(m_leastDelayed)) + delay * 2 * (2 * rounds - 1) / (rounds * (rounds + 1));
    m_frame = m_leastDelayed;
    const double rateError =
        m_secondsPerFrame * soundRate - 1 + delay / roundSeconds * 6 / (rounds * (rounds + 1));
    m_secondsPerFrame = (1 + std::clamp(rateError, -mostRateError, mostRateError)) / soundRate;
    return std::abs(delay) < mostDelay;
}
