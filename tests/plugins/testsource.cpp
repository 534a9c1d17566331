#include "tests/plugins/testsource.h"
#include "tests/plugins/devicestate.h"
#include "tests/plugins/producer.h"
#include "tests/plugins/testmicrophone.h"

#include <gst/base/gstpushsrc.h>

#include <algorithm>
#include <condition_variable>
#include <set>
#include <sstream>
#include <thread>

namespace
{

constexpr guint deviceProperty = 1;
constexpr guint controlsProperty = 2;

// What a camera keeps for a reader that is late; older frames are lost. A driver fills one frame while the
// reader works on the one before.
constexpr int64_t backlog = 1;

struct SourceState {
    std::string section;
    DeviceSettings device;             // as last seen
    std::set<std::string> switchedOff; // controls
    GstCaps *caps = nullptr;           // owned; as agreed upon, and never null while it runs
    std::unique_ptr<Producer> producer;
    std::string pictureFault; // that the producer was made for
    bool isFlooding = false;
    int rate = 30; // frames in so many seconds
    int seconds = 1;
    int64_t firstFrame = -1; // frames are counted from the monotonic clock's zero, so that all devices agree
    int64_t lastFrame = -1;
    int64_t goneSince = 0; // stays, whatever is plugged in later, until the device is opened anew

    std::mutex mutex;
    std::condition_variable changed;
    bool isFlushing = false;
};

struct OrvaneTestSource {
    GstPushSrc parent;
    SourceState *state;
};

struct OrvaneTestSourceClass {
    GstPushSrcClass parent;
};

SourceState *stateOf(gpointer source)
{
    return static_cast<OrvaneTestSource *>(source)->state;
}

int64_t timeOf(const SourceState &state, int64_t frame)
{
    return int64_t(gst_util_uint64_scale(guint64(frame), GST_SECOND * state.seconds, guint64(state.rate)));
}

int64_t frameAt(const SourceState &state, int64_t time)
{
    return int64_t(gst_util_uint64_scale(guint64(time), guint64(state.rate), GST_SECOND * state.seconds));
}

GstCaps *halved(const GstCaps *caps)
{
    GstCaps *half = gst_caps_copy(caps);
    for (const char *side : {"width", "height"}) {
        int pixels = 0;
        gst_structure_get_int(gst_caps_get_structure(half, 0), side, &pixels);
        gst_caps_set_simple(half, side, G_TYPE_INT, pixels / 2, nullptr);
    }
    return half;
}

GstCaps *lastOf(GstCaps *caps)
{
    GstCaps *last = gst_caps_copy_nth(caps, gst_caps_get_size(caps) - 1);
    gst_caps_unref(caps);
    return last;
}

int64_t periodOf(const SourceState &state)
{
    return timeOf(state, 1);
}

} // namespace

G_DEFINE_TYPE(OrvaneTestSource, orvane_test_source, GST_TYPE_PUSH_SRC)

namespace
{

gboolean noteControl(GQuark name, const GValue *value, gpointer state)
{
    if (G_VALUE_HOLDS_INT(value) && g_value_get_int(value) == 0)
        static_cast<SourceState *>(state)->switchedOff.insert(g_quark_to_string(name));
    return TRUE;
}

void setProperty(GObject *object, guint property, const GValue *value, GParamSpec *)
{
    if (property == controlsProperty) {
        gst_structure_foreach(gst_value_get_structure(value), noteControl, stateOf(object));
        return;
    }
    stateOf(object)->section = g_value_get_string(value);
    // Formats are asked for before the device is opened.
    look(stateOf(object)->section, &stateOf(object)->device);
}

void finalize(GObject *object)
{
    gst_clear_caps(&stateOf(object)->caps);
    delete stateOf(object);
    G_OBJECT_CLASS(orvane_test_source_parent_class)->finalize(object);
}

GstStateChangeReturn changeState(GstElement *element, GstStateChange change)
{
    SourceState *state = stateOf(element);
    if (change == GST_STATE_CHANGE_NULL_TO_READY && !openDevice(element, state->section, &state->device))
        return GST_STATE_CHANGE_FAILURE;
    const GstStateChangeReturn result =
        GST_ELEMENT_CLASS(orvane_test_source_parent_class)->change_state(element, change);
    if (change == GST_STATE_CHANGE_READY_TO_NULL)
        waitWhileFaultIs(state->section, &state->device, "hang-close");
    return result;
}

GstCaps *getCaps(GstBaseSrc *source, GstCaps *filter)
{
    SourceState *state = stateOf(source);
    const std::lock_guard lock(state->mutex);
    GstCaps *caps = deviceCaps(state->section, state->device);
    if (!filter)
        return caps;
    GstCaps *both = gst_caps_intersect_full(filter, caps, GST_CAPS_INTERSECT_FIRST);
    gst_caps_unref(caps);
    return both;
}

void takeRate(SourceState *state, const GstCaps *caps)
{
    gst_structure_get_fraction(gst_caps_get_structure(caps, 0), "framerate", &state->rate, &state->seconds);
    state->firstFrame = state->lastFrame = -1;
}

void changeRate(SourceState *state)
{
    const bool isFlood = state->device.value("fault") == "flood";
    if (isFlood == state->isFlooding)
        return;
    state->isFlooding = isFlood;
    takeRate(state, state->caps);
    if (isFlood) {
        state->rate = 10000;
        state->seconds = 1;
    }
}

gboolean setCaps(GstBaseSrc *source, GstCaps *caps)
{
    SourceState *state = stateOf(source);
    if (state->device.value("fault") == "no-bandwidth") {
        GST_ELEMENT_ERROR(source, RESOURCE, SETTINGS, ("Failed to allocate required memory."),
                          ("Buffer pool activation failed"));
        return FALSE;
    }
    state->isFlooding = false;
    takeRate(state, caps);
    state->goneSince = 0;
    state->producer = Producer::ofCamera(state->device, caps);
    state->pictureFault.clear();
    gst_caps_replace(&state->caps, caps);
    return state->producer != nullptr;
}

// In mid-stream, when such a fault begins or ends.
void changePicture(GstPushSrc *source, SourceState *state)
{
    std::string fault = state->device.value("fault");
    if (fault != "other-size" && fault != "other-format")
        fault.clear();
    if (fault == state->pictureFault)
        return;
    const bool isTold = fault == "other-format" || state->pictureFault == "other-format";
    state->pictureFault = fault;
    GstCaps *caps = fault.empty()           ? gst_caps_ref(state->caps)
                    : fault == "other-size" ? halved(state->caps)
                                            : lastOf(deviceCaps(state->section, state->device));
    state->producer = Producer::ofCamera(state->device, caps);
    if (isTold)
        gst_pad_push_event(GST_BASE_SRC_PAD(source), gst_event_new_caps(caps));
    gst_caps_unref(caps);
}

GstBuffer *ofOtherLength(GstBuffer *frame, const std::string &fault)
{
    const gsize size = gst_buffer_get_size(frame);
    GstBuffer *other =
        gst_buffer_copy_region(frame, GST_BUFFER_COPY_ALL, 0, fault == "short" ? size / 2 : size);
    if (fault == "long")
        other = gst_buffer_append(other, gst_buffer_new_allocate(nullptr, size / 4, nullptr));
    gst_buffer_unref(frame);
    return other;
}

int64_t wildTime(int64_t frame, int64_t time)
{
    return frame % 4 == 1 ? 0 : frame % 4 == 3 ? time + 3600 * int64_t(GST_SECOND) : time;
}

gboolean query(GstBaseSrc *source, GstQuery *query)
{
    if (GST_QUERY_TYPE(query) != GST_QUERY_LATENCY)
        return GST_BASE_SRC_CLASS(orvane_test_source_parent_class)->query(source, query);
    const SourceState *state = stateOf(source);
    const int64_t period = periodOf(*state);
    gst_query_set_latency(query, TRUE, GstClockTime(period), GstClockTime((backlog + 1) * period));
    return TRUE;
}

gboolean setFlushing(GstBaseSrc *source, bool flushing)
{
    SourceState *state = stateOf(source);
    const std::lock_guard lock(state->mutex);
    state->isFlushing = flushing;
    state->changed.notify_all();
    return TRUE;
}

gboolean unlock(GstBaseSrc *source)
{
    return setFlushing(source, true);
}

gboolean unlockStop(GstBaseSrc *source)
{
    return setFlushing(source, false);
}

// Until that moment, or until there is something else to say.
GstFlowReturn waitUntil(SourceState *state, int64_t due)
{
    const std::chrono::steady_clock::time_point moment{std::chrono::nanoseconds(due)};
    std::unique_lock lock(state->mutex);
    while (!state->isFlushing) {
        if (!look(state->section, &state->device) && !state->goneSince)
            state->goneSince = monotonicNow();
        const std::string fault = state->device.value("fault");
        if (state->goneSince ? isLossDue(state->device, state->goneSince) : fault == "read-error")
            return GST_FLOW_ERROR;
        if (fault == "ends")
            return GST_FLOW_EOS;
        const bool isSilent = state->goneSince || fault == "stall";
        if (!isSilent && monotonicNow() >= due)
            return GST_FLOW_OK;
        const auto poll = std::chrono::steady_clock::now() + pollPeriod;
        state->changed.wait_until(lock, isSilent ? poll : std::min(poll, moment));
    }
    return GST_FLOW_FLUSHING;
}

int64_t underWay(const SourceState &state)
{
    return std::stoi(state.device.value("under-way", "0")) * int64_t(1'000'000);
}

// That has come by now.
int64_t newestFrame(const SourceState &state)
{
    return frameAt(state, monotonicNow() - underWay(state));
}

// The first that is captured from now on, the frame after the last one, or the oldest that is still kept.
int64_t nextFrame(const SourceState &state)
{
    if (state.lastFrame < 0)
        return frameAt(state, monotonicNow()) + 1;
    const std::string slowing = state.device.value("dim-room");
    const int step = slowing.empty() || state.switchedOff.count(slowing) ? 1 : 2;
    return std::max(state.lastFrame + step, newestFrame(state) - backlog + 1);
}

GstFlowReturn create(GstPushSrc *source, GstBuffer **buffer)
{
    SourceState *state = stateOf(source);
    changeRate(state);
    const GstFlowReturn waited = waitUntil(state, timeOf(*state, nextFrame(*state)) + underWay(*state));
    if (waited == GST_FLOW_ERROR)
        tellReadError(GST_ELEMENT(source), state->goneSince != 0);
    if (waited != GST_FLOW_OK)
        return waited;
    // The wait may have been a stall.
    const int64_t newest = newestFrame(*state);
    const int64_t frame = state->lastFrame < 0 ? newest : std::min(nextFrame(*state), newest);
    if (state->lastFrame < 0)
        state->firstFrame = frame;
    const Moment moment = {frame - state->firstFrame, timeOf(*state, frame), periodOf(*state)};
    changePicture(source, state);
    *buffer = state->producer->make(moment, state->device);
    const std::string fault = state->device.value("fault");
    if (fault == "short" || fault == "long")
        *buffer = ofOtherLength(*buffer, fault);
    const auto baseTime = int64_t(gst_element_get_base_time(GST_ELEMENT(source)));
    // The pipelines' clock is the system's, which is the monotonic one.
    const int64_t time = fault == "wild-times" ? wildTime(frame, moment.captured) : moment.captured;
    GST_BUFFER_PTS(*buffer) = GstClockTime(std::max<int64_t>(time - baseTime, 0));
    GST_BUFFER_DURATION(*buffer) = GstClockTime(moment.period);
    if (frame != state->lastFrame + 1)
        GST_BUFFER_FLAG_SET(*buffer, GST_BUFFER_FLAG_DISCONT);
    state->lastFrame = frame;
    return GST_FLOW_OK;
}

} // namespace

static void orvane_test_source_init(OrvaneTestSource *source)
{
    source->state = new SourceState;
    gst_base_src_set_live(GST_BASE_SRC(source), TRUE);
    gst_base_src_set_format(GST_BASE_SRC(source), GST_FORMAT_TIME);
}

static void orvane_test_source_class_init(OrvaneTestSourceClass *klass)
{
    G_OBJECT_CLASS(klass)->set_property = setProperty;
    G_OBJECT_CLASS(klass)->finalize = finalize;
    g_object_class_install_property(
        G_OBJECT_CLASS(klass), deviceProperty,
        g_param_spec_string("device", "Device", "Its section in the control file", "",
                            GParamFlags(G_PARAM_WRITABLE | G_PARAM_STATIC_STRINGS)));
    // As the usual camera source has it.
    g_object_class_install_property(
        G_OBJECT_CLASS(klass), controlsProperty,
        g_param_spec_boxed("extra-controls", "Controls", "Set when it is opened", GST_TYPE_STRUCTURE,
                           GParamFlags(G_PARAM_WRITABLE | G_PARAM_STATIC_STRINGS)));
    GST_ELEMENT_CLASS(klass)->change_state = changeState;
    gst_element_class_set_static_metadata(GST_ELEMENT_CLASS(klass), "Test source", "Source/Video",
                                          "A camera of the control file", "Orvane");
    GstCaps *any = gst_caps_new_any();
    gst_element_class_add_pad_template(GST_ELEMENT_CLASS(klass),
                                       gst_pad_template_new("src", GST_PAD_SRC, GST_PAD_ALWAYS, any));
    gst_caps_unref(any);
    auto *base = GST_BASE_SRC_CLASS(klass);
    base->get_caps = getCaps;
    base->set_caps = setCaps;
    base->query = query;
    base->unlock = unlock;
    base->unlock_stop = unlockStop;
    GST_PUSH_SRC_CLASS(klass)->create = create;
}

bool isCamera(const std::string &section)
{
    return section.rfind("camera ", 0) == 0;
}

GstCaps *deviceCaps(const std::string &section, const DeviceSettings &device)
{
    if (!isCamera(section))
        return gst_caps_from_string(microphoneCaps);
    GstCaps *caps = gst_caps_new_empty();
    std::stringstream formats(device.value("formats", "YUY2 640x480 30"));
    for (std::string format; std::getline(formats, format, ';');) {
        std::stringstream words(format);
        std::string coding;
        int width = 0;
        int height = 0;
        int rate = 0;
        char by = 0;
        words >> coding >> width >> by >> height >> rate;
        GstCaps *one =
            coding == "JPEG" ? gst_caps_new_empty_simple("image/jpeg")
            : coding == "H264"
                ? gst_caps_from_string("video/x-h264,stream-format=byte-stream,alignment=au")
                : gst_caps_new_simple("video/x-raw", "format", G_TYPE_STRING, coding.c_str(), nullptr);
        gst_caps_set_simple(one, "width", G_TYPE_INT, width, "height", G_TYPE_INT, height, "framerate",
                            GST_TYPE_FRACTION, rate, 1, nullptr);
        if (format.find("interlaced") != std::string::npos)
            gst_caps_set_simple(one, "interlace-mode", G_TYPE_STRING, "interleaved", nullptr);
        gst_caps_append(caps, one);
    }
    return caps;
}
