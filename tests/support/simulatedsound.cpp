#include "tests/support/simulatedsound.h"

#include "platform/soundtrack.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <utility>

namespace
{

constexpr int pieceFrames = soundRate / 100;
constexpr double lookPeriod = 0.25; // as a movie's watching thread
// The two channels are the cosine and the sine of a turn that takes this long, so each frame tells when it
// was captured, and silence is told from sound.
constexpr double turnSeconds = 0.5;
constexpr double started = 0.1;

// Reads the track as it is written.
class Reader
{
public:
    void read(const std::vector<float> &frames, qint64 first)
    {
        for (size_t i = 0; i < frames.size(); i += soundChannels, ++first)
            note(double(first) / soundRate, frames[i], frames[i + 1]);
    }
    SimulatedSound result() const { return m_result; }

private:
    void note(double moment, double cosine, double sine)
    {
        m_result.length = moment;
        if (std::hypot(cosine, sine) < 0.5) {
            m_result.silence += m_hasBegun ? 1.0 / soundRate : 0;
            m_wasSilent = true;
            return;
        }
        const double turn = std::atan2(sine, cosine) / (2 * M_PI) * turnSeconds;
        const double late = std::remainder(moment - turn, turnSeconds);
        if (!m_hasBegun)
            m_result.least = m_result.most = late;
        if (!m_wasSilent)
            m_result.longestJump = std::max(m_result.longestJump, std::abs(late - m_result.atEnd));
        m_result.least = std::min(m_result.least, late);
        m_result.most = std::max(m_result.most, late);
        m_result.atEnd = late;
        m_hasBegun = true;
        m_wasSilent = false;
    }

    SimulatedSound m_result;
    bool m_hasBegun = false;
    bool m_wasSilent = true;
};

std::vector<float> pieceAt(double moment, double period)
{
    std::vector<float> piece;
    for (int i = 0; i < pieceFrames; ++i) {
        const double turn = 2 * M_PI * (moment + i * period) / turnSeconds;
        piece.push_back(float(std::cos(turn)));
        piece.push_back(float(std::sin(turn)));
    }
    return piece;
}

} // namespace

SimulatedSound simulate(const SimulatedMicrophone &microphone)
{
    Reader reader;
    SoundTrack track(
        0, [&reader](const std::vector<float> &frames, qint64 first) { reader.read(frames, first); });
    track.endAt(microphone.seconds);
    std::minstd_rand random(1);
    std::exponential_distribution<double> lateness(5);
    const double period = 1 / (soundRate * (1 + microphone.clock));
    int looks = 0;
    double arrival = 0;
    double moment = started;
    for (qint64 frame = pieceFrames; moment < microphone.seconds; frame += pieceFrames) {
        const double end = started + double(frame) * period;
        const double begin = std::exchange(moment, end);
        if (begin >= microphone.lostFrom && begin < microphone.lostUntil)
            continue;
        const double due =
            microphone.bursts > 0 ? std::ceil(end / microphone.bursts) * microphone.bursts : end;
        arrival = std::max(arrival, due + microphone.jitter * std::min(1.0, lateness(random)));
        while (looks * lookPeriod < arrival)
            track.fill(looks++ * lookPeriod);
        track.add(pieceAt(begin, period).data(), pieceFrames, arrival);
    }
    track.close();
    return reader.result();
}
