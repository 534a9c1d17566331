#include "tests/plugins/producer.h"

#include <cmath>

namespace
{

constexpr int chunkSamples = soundRate / chunksPerSecond;
constexpr int beepSamples = soundRate / 20;
constexpr double beepFrequency = 1000;
constexpr double toneFrequency = 440; // a whole number of waves a second, so that the seconds join
constexpr double amplitude = 0.5 * INT16_MAX;

// Repeats itself with each second of the monotonic clock.
class MicrophoneProducer : public Producer
{
public:
    MicrophoneProducer(const std::string &sound, int channels)
        : m_channels(channels), m_second(size_t(soundRate) * channels)
    {
        const int samples = sound == "beep" ? beepSamples : sound == "tone" ? soundRate : 0;
        const double frequency = sound == "beep" ? beepFrequency : toneFrequency;
        for (int i = 0; i < samples * channels; ++i) {
            const int sample = i / channels;
            m_second[i] = int16_t(amplitude * std::sin(2 * M_PI * frequency * sample / soundRate));
        }
    }
    GstBuffer *make(const Moment &moment, const DeviceSettings &) override
    {
        const auto chunk = size_t(moment.captured / moment.period % chunksPerSecond);
        const size_t samples = size_t(chunkSamples) * m_channels;
        return gst_buffer_new_memdup(&m_second[chunk * samples], samples * sizeof(int16_t));
    }

private:
    const int m_channels;
    std::vector<int16_t> m_second;
};

} // namespace

std::unique_ptr<Producer> Producer::ofMicrophone(const DeviceSettings &device, const GstCaps *fixed)
{
    int channels = 0;
    if (!gst_structure_get_int(gst_caps_get_structure(fixed, 0), "channels", &channels))
        return nullptr;
    return std::make_unique<MicrophoneProducer>(device.value("sound"), channels);
}
