#include "platform/camerapipeline.h"

#include "platform/requiredelements.h"

#include <gst/app/gstappsink.h>

#include <algorithm>

namespace
{

// A decoder keeps hold of a frame or two; anything older was dropped by it.
constexpr size_t rememberedJpegs = 8;

void setIfPresent(GstElement *element, const char *property, const char *value)
{
    if (g_object_class_find_property(G_OBJECT_GET_CLASS(element), property))
        gst_util_set_object_arg(G_OBJECT(element), property, value);
}

} // namespace

CameraPipeline::CameraPipeline(GstDevice *device, const CaptureMode &mode)
    : m_pipeline(GST_ELEMENT(gst_object_ref_sink(gst_pipeline_new("camera")))),
      m_bus(gst_element_get_bus(m_pipeline.get()))
{
    // The same clock for the camera and for the movie, so that a frame's time means the same in both, and
    // never the clock of a microphone that can be pulled out.
    const ClockHandle clock(gst_system_clock_obtain());
    gst_pipeline_use_clock(GST_PIPELINE(m_pipeline.get()), clock.get());
    if (!build(device, mode))
        fail({CameraFault::Failed, QStringLiteral("No stream can be put together for it.")});
}

CameraPipeline::~CameraPipeline()
{
    gst_element_set_state(m_pipeline.get(), GST_STATE_NULL);
}

GstElement *CameraPipeline::add(const char *element)
{
    GstElement *made = gst_element_factory_make(element, nullptr);
    if (made)
        gst_bin_add(GST_BIN(m_pipeline.get()), made);
    return made;
}

bool CameraPipeline::build(GstDevice *device, const CaptureMode &mode)
{
    GstElement *source = gst_device_create_element(device, nullptr);
    if (!source)
        return false;
    gst_bin_add(GST_BIN(m_pipeline.get()), source);
    GstElement *filter = add("capsfilter");
    m_sink = add("appsink");
    if (!filter || !m_sink)
        return false;
    const CapsHandle caps = fixedCaps(mode);
    g_object_set(filter, "caps", caps.get(), nullptr);
    const CapsHandle rawCaps(gst_caps_new_empty_simple("video/x-raw"));
    g_object_set(m_sink, "caps", rawCaps.get(), "max-buffers", guint(mostWaitingFrames), "drop", TRUE, "sync",
                 FALSE, "async", FALSE, "qos", FALSE, "enable-last-sample", FALSE, "wait-on-eos", FALSE,
                 nullptr);

    // No queue and no converter: the source's thread decodes, and what the formats need is done once for
    // each use, at the size of that use.
    GstElement *last = filter;
    return gst_element_link(source, filter) && addDecoder(mode, &last) && gst_element_link(last, m_sink);
}

bool CameraPipeline::addDecoder(const CaptureMode &mode, GstElement **last)
{
    if (mode.coding == CaptureMode::Coding::Raw)
        return true;
    if (mode.coding == CaptureMode::Coding::H264) {
        GstElement *parser = add("h264parse");
        if (!parser || !gst_element_link(*last, parser))
            return false;
        *last = parser;
    }
    const bool isJpeg = mode.coding == CaptureMode::Coding::Jpeg;
    const QByteArray name = isJpeg ? RequiredElements::jpegDecoder() : RequiredElements::h264Decoder();
    GstElement *decoder = name.isEmpty() ? nullptr : add(name.constData());
    if (!decoder || !gst_element_link(*last, decoder))
        return false;
    // Threads that each decode a frame would keep the picture back by as many frames.
    setIfPresent(decoder, "thread-type", "slice");
    *last = decoder;
    if (isJpeg) {
        const PadHandle pad(gst_element_get_static_pad(decoder, "sink"));
        gst_pad_add_probe(pad.get(), GST_PAD_PROBE_TYPE_BUFFER, keepJpeg, this, nullptr);
    }
    return true;
}

GstPadProbeReturn CameraPipeline::keepJpeg(GstPad *, GstPadProbeInfo *info, gpointer self)
{
    auto *pipeline = static_cast<CameraPipeline *>(self);
    const std::lock_guard<std::mutex> lock(pipeline->m_jpegMutex);
    pipeline->m_jpegs.push_back(retain(gst_pad_probe_info_get_buffer(info)));
    if (pipeline->m_jpegs.size() > rememberedJpegs)
        pipeline->m_jpegs.pop_front();
    return GST_PAD_PROBE_OK;
}

BufferHandle CameraPipeline::jpegOf(GstClockTime time)
{
    const std::lock_guard<std::mutex> lock(m_jpegMutex);
    const auto found = std::find_if(m_jpegs.begin(), m_jpegs.end(), [time](const BufferHandle &jpeg) {
        return GST_BUFFER_PTS(jpeg.get()) == time;
    });
    return found == m_jpegs.end() ? BufferHandle() : retain(found->get());
}

bool CameraPipeline::open()
{
    if (m_failure.fault != CameraFault::None)
        return false;
    if (gst_element_set_state(m_pipeline.get(), GST_STATE_PLAYING) != GST_STATE_CHANGE_FAILURE)
        return true;
    if (!hasFailed())
        fail({CameraFault::Failed, QStringLiteral("It cannot be opened and does not say why.")});
    return false;
}

void CameraPipeline::setPaused(bool paused)
{
    gst_element_set_state(m_pipeline.get(), paused ? GST_STATE_PAUSED : GST_STATE_PLAYING);
}

FramePtr CameraPipeline::nextFrame(std::chrono::milliseconds wait)
{
    const SampleHandle sample(
        gst_app_sink_try_pull_sample(GST_APP_SINK(m_sink), GstClockTime(wait.count()) * GST_MSECOND));
    if (!sample)
        return {};
    auto frame = std::make_shared<CapturedFrame>();
    if (!gst_video_info_from_caps(&frame->info, gst_sample_get_caps(sample.get())))
        return {};
    frame->picture = retain(gst_sample_get_buffer(sample.get()));
    const GstClockTime time = GST_BUFFER_PTS(frame->picture.get());
    if (GST_CLOCK_TIME_IS_VALID(time)) {
        frame->jpeg = jpegOf(time);
        frame->clockTime =
            gst_element_get_base_time(m_pipeline.get()) +
            gst_segment_to_running_time(gst_sample_get_segment(sample.get()), GST_FORMAT_TIME, time);
    } else {
        const ClockHandle clock(gst_system_clock_obtain());
        frame->clockTime = gst_clock_get_time(clock.get());
    }
    return frame;
}

bool CameraPipeline::hasFailed()
{
    while (const MessageHandle message{gst_bus_pop(m_bus.get())}) {
        if (GST_MESSAGE_TYPE(message.get()) == GST_MESSAGE_ERROR)
            fail(cameraFailure(message.get()));
        else if (GST_MESSAGE_TYPE(message.get()) == GST_MESSAGE_EOS)
            fail({CameraFault::Failed, QStringLiteral("Its stream has ended.")});
    }
    return m_failure.fault != CameraFault::None;
}

// What comes after the first failure follows from it.
void CameraPipeline::fail(CameraFailure failure)
{
    if (m_failure.fault == CameraFault::None)
        m_failure = std::move(failure);
}
