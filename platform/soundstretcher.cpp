#include "platform/soundstretcher.h"

#include "platform/soundformat.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace
{

// A frame between two of the input is mixed from so many before and after it. What stands between two
// microphone samples is their band-limited course: a windowed sinc, kept for so many places in between.
constexpr int reach = 16;
constexpr int taps = 2 * reach;
constexpr int places = 512;

using Mix = std::array<float, taps>;

double windowedSinc(double x)
{
    if (std::abs(x) < 1e-9)
        return 1;
    const double window = 0.42 + 0.5 * std::cos(M_PI * x / reach) + 0.08 * std::cos(2 * M_PI * x / reach);
    return std::sin(M_PI * x) / (M_PI * x) * window;
}

std::array<Mix, places + 1> makeMixes()
{
    std::array<Mix, places + 1> mixes{};
    for (int place = 0; place <= places; ++place) {
        for (int tap = 0; tap < taps; ++tap)
            mixes[place][tap] = float(windowedSinc(double(place) / places - (tap - reach + 1)));
    }
    return mixes;
}

Mix mixAt(double fraction)
{
    static const std::array<Mix, places + 1> mixes = makeMixes();
    const double place = fraction * places;
    const int before = int(place);
    const auto after = float(place - before);
    Mix mix{};
    for (int tap = 0; tap < taps; ++tap)
        mix[tap] = mixes[before][tap] + after * (mixes[before + 1][tap] - mixes[before][tap]);
    return mix;
}

} // namespace

SoundStretcher::SoundStretcher() : m_input(size_t(reach - 1) * soundChannels) {}

void SoundStretcher::put(const float *frames, size_t count)
{
    m_input.insert(m_input.end(), frames, frames + count * soundChannels);
}

void SoundStretcher::take(double step, std::vector<float> *frames)
{
    const auto there = qint64(m_input.size() / soundChannels);
    for (const auto end = double(there - taps + 1); m_place < end; m_place += step) {
        const double whole = std::floor(m_place);
        const Mix mix = mixAt(m_place - whole);
        const float *input = &m_input[size_t(whole) * soundChannels];
        std::array<float, soundChannels> frame{};
        for (int i = 0; i < taps * soundChannels; ++i)
            frame[i % soundChannels] += mix[i / soundChannels] * input[i];
        frames->insert(frames->end(), frame.begin(), frame.end());
    }
    drop();
}

void SoundStretcher::drop()
{
    const auto used = std::min(qint64(m_place), qint64(m_input.size() / soundChannels) - (reach - 1));
    m_input.erase(m_input.begin(), m_input.begin() + used * soundChannels);
    m_dropped += used;
    m_place -= double(used);
}
