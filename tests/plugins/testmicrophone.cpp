#include "tests/plugins/testmicrophone.h"
#include "tests/plugins/devicestate.h"

#include <gst/audio/gstaudiosrc.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <thread>
#include <utility>

namespace
{

constexpr double beepSeconds = 0.05;
constexpr double beepFrequency = 1000;
constexpr double toneFrequency = 440;
constexpr double amplitude = 0.5 * INT16_MAX;
// The pieces of a burst are this far apart, so that the reader's buffer, which is shorter, holds them.
constexpr auto burstPace = std::chrono::microseconds(300);

struct MicrophoneState {
    std::string section;
    DeviceSettings device; // as last seen
    int channels = 1;
    int rate = 48000;
    int64_t began = 0;    // when the first frame was captured
    int64_t captured = 0; // frames since then
    int64_t goneSince = 0;
    bool isToldLost = false;
    std::atomic<bool> hasEnded{false};
    std::atomic<bool> isReset{false};
};

struct OrvaneTestMicrophone {
    GstAudioSrc parent;
    MicrophoneState *state;
};

struct OrvaneTestMicrophoneClass {
    GstAudioSrcClass parent;
};

MicrophoneState *stateOf(gpointer source)
{
    return static_cast<OrvaneTestMicrophone *>(source)->state;
}

} // namespace

G_DEFINE_TYPE(OrvaneTestMicrophone, orvane_test_microphone, GST_TYPE_AUDIO_SRC)

namespace
{

void setProperty(GObject *object, guint, const GValue *value, GParamSpec *)
{
    stateOf(object)->section = g_value_get_string(value);
}

void finalize(GObject *object)
{
    delete stateOf(object);
    G_OBJECT_CLASS(orvane_test_microphone_parent_class)->finalize(object);
}

gboolean open(GstAudioSrc *source)
{
    MicrophoneState *state = stateOf(source);
    return openDevice(GST_ELEMENT(source), state->section, &state->device);
}

gboolean close(GstAudioSrc *source)
{
    MicrophoneState *state = stateOf(source);
    waitWhileFaultIs(state->section, &state->device, "hang-close");
    return TRUE;
}

gboolean prepare(GstAudioSrc *source, GstAudioRingBufferSpec *spec)
{
    MicrophoneState *state = stateOf(source);
    state->channels = GST_AUDIO_INFO_CHANNELS(&spec->info);
    state->rate = GST_AUDIO_INFO_RATE(&spec->info);
    state->captured = 0;
    state->isReset = false;
    return TRUE;
}

gboolean unprepare(GstAudioSrc *)
{
    return TRUE;
}

double periodOf(const MicrophoneState &state)
{
    return 1e9 / (state.rate * (1 + std::stod(state.device.value("clock", "0")) / 1e6));
}

// When the frame after so many was captured.
int64_t timeOf(const MicrophoneState &state, int64_t frames)
{
    return state.began + std::llround(double(frames) * periodOf(state));
}

// What the room sounds like, by the seconds of the monotonic clock.
double soundAt(const std::string &sound, int64_t time)
{
    const double second = double(time % GST_SECOND) / GST_SECOND;
    if (sound == "tone" || (sound == "beep" && second < beepSeconds))
        return amplitude * std::sin(2 * M_PI * (sound == "tone" ? toneFrequency : beepFrequency) * second);
    return 0;
}

// When a piece whose last frame is captured at that moment is given.
int64_t dueOf(const MicrophoneState &state, int64_t end)
{
    const int64_t bursts = std::stoll(state.device.value("bursts", "0")) * GST_MSECOND;
    return bursts ? (end + bursts - 1) / bursts * bursts : end;
}

// Until the piece is there. False when nothing more comes.
bool waitForPiece(GstElement *source, MicrophoneState *state, int64_t frames)
{
    for (; !state->isReset; std::this_thread::sleep_for(pollPeriod)) {
        if (!look(state->section, &state->device) && !state->goneSince)
            state->goneSince = monotonicNow();
        const std::string fault = state->device.value("fault");
        const bool isLost =
            state->goneSince ? isLossDue(state->device, state->goneSince) : fault == "read-error";
        if (isLost && !std::exchange(state->isToldLost, true))
            tellReadError(source, state->goneSince != 0);
        if (isLost || state->goneSince || state->isToldLost)
            continue;
        state->hasEnded = fault == "ends";
        // What is captured meanwhile is lost.
        if (fault == "stall") {
            state->captured = 0;
            continue;
        }
        if (!state->captured)
            state->began = monotonicNow();
        const int64_t due = dueOf(*state, timeOf(*state, state->captured + frames));
        state->captured += frames;
        const bool isInBurst = due < monotonicNow();
        std::this_thread::sleep_until(std::chrono::steady_clock::time_point(std::chrono::nanoseconds(due)));
        if (isInBurst)
            std::this_thread::sleep_for(burstPace);
        return true;
    }
    return false;
}

guint readSound(GstAudioSrc *source, gpointer data, guint length, GstClockTime *)
{
    MicrophoneState *state = stateOf(source);
    const int64_t frames = length / (sizeof(int16_t) * guint(state->channels));
    if (!waitForPiece(GST_ELEMENT(source), state, frames))
        return guint(-1);
    const std::string sound = state->device.value("sound");
    auto *samples = static_cast<int16_t *>(data);
    for (int64_t frame = state->captured - frames; frame < state->captured; ++frame) {
        const auto value = int16_t(soundAt(sound, timeOf(*state, frame)));
        samples = std::fill_n(samples, state->channels, value);
    }
    return length;
}

GstFlowReturn create(GstBaseSrc *source, guint64 offset, guint length, GstBuffer **sound)
{
    if (stateOf(source)->hasEnded)
        return GST_FLOW_EOS;
    return GST_BASE_SRC_CLASS(orvane_test_microphone_parent_class)->create(source, offset, length, sound);
}

void reset(GstAudioSrc *source)
{
    stateOf(source)->isReset = true;
}

} // namespace

static void orvane_test_microphone_init(OrvaneTestMicrophone *source)
{
    source->state = new MicrophoneState;
}

static void orvane_test_microphone_class_init(OrvaneTestMicrophoneClass *klass)
{
    G_OBJECT_CLASS(klass)->set_property = setProperty;
    G_OBJECT_CLASS(klass)->finalize = finalize;
    g_object_class_install_property(
        G_OBJECT_CLASS(klass), 1,
        g_param_spec_string("device", "Device", "Its section in the control file", "",
                            GParamFlags(G_PARAM_WRITABLE | G_PARAM_STATIC_STRINGS)));
    gst_element_class_set_static_metadata(GST_ELEMENT_CLASS(klass), "Test microphone", "Source/Audio",
                                          "A microphone of the control file", "Orvane");
    GstCaps *caps = gst_caps_from_string(microphoneCaps);
    gst_element_class_add_pad_template(GST_ELEMENT_CLASS(klass),
                                       gst_pad_template_new("src", GST_PAD_SRC, GST_PAD_ALWAYS, caps));
    gst_caps_unref(caps);
    GST_BASE_SRC_CLASS(klass)->create = create;
    auto *audio = GST_AUDIO_SRC_CLASS(klass);
    audio->open = open;
    audio->close = close;
    audio->prepare = prepare;
    audio->unprepare = unprepare;
    audio->read = readSound;
    audio->reset = reset;
}
