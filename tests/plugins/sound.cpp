#include "tests/plugins/sound.h"

#include <cmath>
#include <glib.h>

namespace
{

constexpr int beepSamples = soundRate / 20;
constexpr double beepFrequency = 1000;
constexpr double toneFrequency = 440; // a whole number of waves a second, so that the seconds join
constexpr double amplitude = 0.5 * INT16_MAX;

void sine(std::vector<int16_t> *second, int samples, double frequency)
{
    for (int sample = 0; sample < samples; ++sample)
        (*second)[sample] = static_cast<int16_t>(
            std::lround(amplitude * std::sin(2 * M_PI * frequency * sample / soundRate)));
}

} // namespace

std::vector<int16_t> secondOfSound(const std::string &word)
{
    std::vector<int16_t> second(soundRate, 0);
    if (word == "beep")
        sine(&second, beepSamples, beepFrequency);
    else if (word == "tone")
        sine(&second, soundRate, toneFrequency);
    else if (word != "silence")
        g_warning("sound \"%s\" is not known", word.c_str());
    return second;
}
