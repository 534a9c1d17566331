#include "tests/plugins/microphone.h"
#include "tests/plugins/deviceformats.h"
#include "tests/plugins/framepacer.h"
#include "tests/plugins/sound.h"
#include "tests/plugins/testsource.h"

namespace
{

constexpr int chunksPerSecond = 100;
constexpr int chunkSamples = soundRate / chunksPerSecond;
// The ring buffer of usual sound sources holds 200 ms.
constexpr int64_t backlogChunks = 20;
constexpr GstClockTime chunkDuration = GST_SECOND / chunksPerSecond;

struct MicrophoneState {
    FramePacer pacer = {chunksPerSecond, 1, backlogChunks};
    std::vector<int16_t> second;
    int channels = 1;
};

struct OrvaneTestMicrophone {
    OrvaneTestSource parent;
    MicrophoneState *state;
};

struct OrvaneTestMicrophoneClass {
    OrvaneTestSourceClass parent;
};

OrvaneTestMicrophone *self(gpointer object)
{
    return static_cast<OrvaneTestMicrophone *>(object);
}

} // namespace

G_DEFINE_TYPE(OrvaneTestMicrophone, orvane_test_microphone, orvane_test_source_get_type())

namespace
{

void finalize(GObject *object)
{
    delete self(object)->state;
    G_OBJECT_CLASS(orvane_test_microphone_parent_class)->finalize(object);
}

GstCaps *fixate(GstBaseSrc *base, GstCaps *caps)
{
    GstCaps *fixed = gst_caps_make_writable(gst_caps_truncate(caps));
    gst_structure_fixate_field_nearest_int(gst_caps_get_structure(fixed, 0), "channels", 2);
    return GST_BASE_SRC_CLASS(orvane_test_microphone_parent_class)->fixate(base, fixed);
}

gboolean setCaps(GstBaseSrc *base, GstCaps *caps)
{
    MicrophoneState *state = self(base)->state;
    const auto device = self(base)->parent.state->link->settings();
    if (!device || !gst_structure_get_int(gst_caps_get_structure(caps, 0), "channels", &state->channels))
        return FALSE;
    state->second = secondOfSound(device->sound);
    state->pacer = {chunksPerSecond, 1, backlogChunks};
    return TRUE;
}

GstBuffer *chunk(const MicrophoneState &state, int64_t number)
{
    const size_t size = size_t(chunkSamples) * state.channels * sizeof(int16_t);
    std::vector<int16_t> samples;
    samples.reserve(size_t(chunkSamples) * state.channels);
    const auto start = state.second.begin() + number % chunksPerSecond * chunkSamples;
    std::for_each(start, start + chunkSamples,
                  [&](int16_t sample) { samples.insert(samples.end(), size_t(state.channels), sample); });
    return gst_buffer_new_memdup(samples.data(), size);
}

GstFlowReturn create(GstPushSrc *push, GstBuffer **buffer)
{
    MicrophoneState *state = self(push)->state;
    OrvaneTestSource *source = &self(push)->parent;
    // A chunk is there when its last sample is.
    const auto recorded = [state](int64_t chunk) { return state->pacer.timeOf(chunk + 1); };
    int64_t number = state->pacer.next(monotonicNow());
    const GstFlowReturn waited = waitForMoment(source, recorded(number));
    if (waited != GST_FLOW_OK)
        return waited;
    number = std::max(number, state->pacer.oldestKept(monotonicNow()));
    *buffer = chunk(*state, number);
    stampBuffer(source, *buffer, state->pacer.timeOf(number), chunkDuration);
    if (state->pacer.isGap(number))
        GST_BUFFER_FLAG_SET(*buffer, GST_BUFFER_FLAG_DISCONT);
    state->pacer.given(number);
    return GST_FLOW_OK;
}

} // namespace

static void orvane_test_microphone_init(OrvaneTestMicrophone *microphone)
{
    microphone->state = new MicrophoneState;
    SourceState *source = microphone->parent.state;
    source->minLatency = chunkDuration;
    source->maxLatency = backlogChunks * chunkDuration;
}

static void orvane_test_microphone_class_init(OrvaneTestMicrophoneClass *klass)
{
    G_OBJECT_CLASS(klass)->finalize = finalize;
    klass->parent.kind = DeviceKind::Microphone;
    klass->parent.deviceCaps = microphoneCaps;
    auto *element = GST_ELEMENT_CLASS(klass);
    gst_element_class_set_static_metadata(element, "Test microphone", "Source/Audio",
                                          "A microphone of the control file", "Orvane");
    GstCaps *caps = microphoneCaps({});
    gst_element_class_add_pad_template(element,
                                       gst_pad_template_new("src", GST_PAD_SRC, GST_PAD_ALWAYS, caps));
    gst_caps_unref(caps);
    GST_BASE_SRC_CLASS(klass)->fixate = fixate;
    GST_BASE_SRC_CLASS(klass)->set_caps = setCaps;
    GST_PUSH_SRC_CLASS(klass)->create = create;
}
