#include "tests/plugins/camera.h"
#include "tests/plugins/deviceformats.h"
#include "tests/plugins/framemaker.h"
#include "tests/plugins/framepacer.h"
#include "tests/plugins/testsource.h"

#include <optional>

namespace
{

constexpr int defaultRate = 30;

// A driver fills a frame while the reader works on the one before; a reader that is later loses frames.
constexpr int64_t backlogFrames = 1;

struct CameraState {
    std::unique_ptr<FrameMaker> frames;
    std::optional<FramePacer> pacer;
};

struct OrvaneTestCamera {
    OrvaneTestSource parent;
    CameraState *state;
};

struct OrvaneTestCameraClass {
    OrvaneTestSourceClass parent;
};

OrvaneTestCamera *self(gpointer object)
{
    return static_cast<OrvaneTestCamera *>(object);
}

} // namespace

G_DEFINE_TYPE(OrvaneTestCamera, orvane_test_camera, orvane_test_source_get_type())

namespace
{

void finalize(GObject *object)
{
    delete self(object)->state;
    G_OBJECT_CLASS(orvane_test_camera_parent_class)->finalize(object);
}

// Left to itself the camera gives its first mode at its largest and close to the usual rate.
GstCaps *fixate(GstBaseSrc *base, GstCaps *caps)
{
    GstCaps *fixed = gst_caps_make_writable(gst_caps_truncate(caps));
    GstStructure *format = gst_caps_get_structure(fixed, 0);
    gst_structure_fixate_field_nearest_int(format, "width", G_MAXINT);
    gst_structure_fixate_field_nearest_int(format, "height", G_MAXINT);
    gst_structure_fixate_field_nearest_fraction(format, "framerate", defaultRate, 1);
    return GST_BASE_SRC_CLASS(orvane_test_camera_parent_class)->fixate(base, fixed);
}

gboolean setCaps(GstBaseSrc *base, GstCaps *caps)
{
    CameraState *state = self(base)->state;
    SourceState *source = self(base)->parent.state;
    const auto device = source->link->settings();
    int numerator = defaultRate;
    int denominator = 1;
    const GstStructure *format = gst_caps_get_structure(caps, 0);
    if (!gst_structure_get_fraction(format, "framerate", &numerator, &denominator) || numerator == 0) {
        numerator = defaultRate;
        denominator = 1;
    }
    state->frames = device ? FrameMaker::make(*device, caps) : nullptr;
    state->pacer.emplace(numerator, denominator, backlogFrames);
    source->minLatency = GstClockTime(state->pacer->period());
    source->maxLatency = 2 * source->minLatency;
    return state->frames != nullptr;
}

GstFlowReturn create(GstPushSrc *push, GstBuffer **buffer)
{
    CameraState *state = self(push)->state;
    OrvaneTestSource *source = &self(push)->parent;
    int64_t frame = state->pacer->next(monotonicNow());
    const GstFlowReturn waited = waitForMoment(source, state->pacer->timeOf(frame));
    if (waited != GST_FLOW_OK)
        return waited;
    // The wait may have been a stall.
    frame = std::max(frame, state->pacer->oldestKept(monotonicNow()));
    const int64_t captured = state->pacer->timeOf(frame);
    const auto device = source->state->link->settings();
    const Moment moment = {uint32_t(state->pacer->number(frame)), captured, state->pacer->period()};
    *buffer = state->frames->frame(moment, device ? device->damaged : DamagedFrames());
    if (!*buffer)
        return GST_FLOW_ERROR;
    stampBuffer(source, *buffer, captured, GstClockTime(moment.period));
    GST_BUFFER_OFFSET(*buffer) = moment.frame;
    if (state->pacer->isGap(frame))
        GST_BUFFER_FLAG_SET(*buffer, GST_BUFFER_FLAG_DISCONT);
    state->pacer->given(frame);
    return GST_FLOW_OK;
}

} // namespace

static void orvane_test_camera_init(OrvaneTestCamera *camera)
{
    camera->state = new CameraState;
}

static void orvane_test_camera_class_init(OrvaneTestCameraClass *klass)
{
    G_OBJECT_CLASS(klass)->finalize = finalize;
    klass->parent.kind = DeviceKind::Camera;
    klass->parent.deviceCaps = cameraCaps;
    auto *element = GST_ELEMENT_CLASS(klass);
    gst_element_class_set_static_metadata(element, "Test camera", "Source/Video",
                                          "A camera of the control file", "Orvane");
    GstCaps *caps = anyCameraCaps();
    gst_element_class_add_pad_template(element,
                                       gst_pad_template_new("src", GST_PAD_SRC, GST_PAD_ALWAYS, caps));
    gst_caps_unref(caps);
    GST_BASE_SRC_CLASS(klass)->fixate = fixate;
    GST_BASE_SRC_CLASS(klass)->set_caps = setCaps;
    GST_PUSH_SRC_CLASS(klass)->create = create;
}
