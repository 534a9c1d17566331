#include "demo/democamera.h"
#include "demo/deskpicture.h"

#include <algorithm>
#include <gst/base/gstpushsrc.h>

namespace
{

struct CameraState {
    std::unique_ptr<DeskPicture> picture;
    GstClockTime period = GST_CLOCK_TIME_NONE;
    GstClockTime started = GST_CLOCK_TIME_NONE; // running time at which the first frame was asked for
    guint64 nextFrame = 0;
};

struct OrvaneDemoCamera {
    GstPushSrc parent;
    CameraState *state;
};

struct OrvaneDemoCameraClass {
    GstPushSrcClass parent;
};

CameraState *stateOf(gpointer camera)
{
    return static_cast<OrvaneDemoCamera *>(camera)->state;
}

} // namespace

G_DEFINE_TYPE(OrvaneDemoCamera, orvane_demo_camera, GST_TYPE_PUSH_SRC)

namespace
{

void finalize(GObject *object)
{
    delete stateOf(object);
    G_OBJECT_CLASS(orvane_demo_camera_parent_class)->finalize(object);
}

gboolean start(GstBaseSrc *base)
{
    stateOf(base)->started = GST_CLOCK_TIME_NONE;
    stateOf(base)->nextFrame = 0;
    return TRUE;
}

gboolean setCaps(GstBaseSrc *base, GstCaps *caps)
{
    GstVideoInfo info;
    if (!gst_video_info_from_caps(&info, caps) || info.fps_n <= 0)
        return FALSE;
    CameraState *state = stateOf(base);
    state->period = gst_util_uint64_scale(GST_SECOND, guint64(info.fps_d), guint64(info.fps_n));
    // The converters want pictures of one rate; a drawn one has none.
    info.fps_n = 0;
    info.fps_d = 1;
    state->picture = std::make_unique<DeskPicture>(info);
    return TRUE;
}

GstClockTime runningTime(GstElement *element)
{
    GstClock *clock = gst_element_get_clock(element);
    if (!clock)
        return 0;
    const GstClockTime time = gst_clock_get_time(clock);
    gst_object_unref(clock);
    const GstClockTime base = gst_element_get_base_time(element);
    return time > base ? time - base : 0;
}

// The base class gives the first frame at once and moves all later ones by as much; it waits for each one's
// moment before it hands the frame on.
void getTimes(GstBaseSrc *, GstBuffer *buffer, GstClockTime *begin, GstClockTime *end)
{
    *begin = GST_BUFFER_PTS(buffer);
    *end = *begin + GST_BUFFER_DURATION(buffer);
}

GstFlowReturn create(GstPushSrc *push, GstBuffer **buffer)
{
    CameraState *state = stateOf(push);
    const GstClockTime now = runningTime(GST_ELEMENT(push));
    if (state->started == GST_CLOCK_TIME_NONE)
        state->started = now;
    // As from a real camera, frames for which the reader was too late are lost.
    const guint64 frame = std::max(state->nextFrame, (now - state->started) / state->period);
    const GstClockTime time = frame * state->period;
    *buffer = state->picture->frame(double(time) / GST_SECOND, std::time(nullptr));
    GST_BUFFER_PTS(*buffer) = time;
    GST_BUFFER_DURATION(*buffer) = state->period;
    GST_BUFFER_OFFSET(*buffer) = frame;
    if (frame != state->nextFrame)
        GST_BUFFER_FLAG_SET(*buffer, GST_BUFFER_FLAG_DISCONT);
    state->nextFrame = frame + 1;
    return GST_FLOW_OK;
}

} // namespace

GstCaps *demoCameraCaps()
{
    return gst_caps_from_string("video/x-raw,format=YUY2,width=1920,height=1080,framerate=30/1;"
                                "video/x-raw,format=YUY2,width=1280,height=720,framerate=30/1;"
                                "video/x-raw,format=YUY2,width=640,height=480,framerate=30/1");
}

static void orvane_demo_camera_init(OrvaneDemoCamera *camera)
{
    camera->state = new CameraState;
    gst_base_src_set_live(GST_BASE_SRC(camera), TRUE);
    gst_base_src_set_format(GST_BASE_SRC(camera), GST_FORMAT_TIME);
}

static void orvane_demo_camera_class_init(OrvaneDemoCameraClass *klass)
{
    G_OBJECT_CLASS(klass)->finalize = finalize;
    auto *element = GST_ELEMENT_CLASS(klass);
    gst_element_class_set_static_metadata(element, "Demo camera", "Source/Video",
                                          "A document camera over a desk that is drawn", "Orvane");
    GstCaps *caps = demoCameraCaps();
    gst_element_class_add_pad_template(element,
                                       gst_pad_template_new("src", GST_PAD_SRC, GST_PAD_ALWAYS, caps));
    gst_caps_unref(caps);
    auto *base = GST_BASE_SRC_CLASS(klass);
    base->start = start;
    base->set_caps = setCaps;
    base->get_times = getTimes;
    GST_PUSH_SRC_CLASS(klass)->create = create;
}
