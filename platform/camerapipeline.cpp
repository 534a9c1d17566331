#include "platform/camerapipeline.h"

#include "platform/h264coders.h"
#include "platform/optionalproperty.h"
#include "platform/parsedelements.h"

#include <gst/app/gstappsink.h>

#include <algorithm>
#include <array>

namespace
{

// Older ones do not come even out of a busy machine's queues.
constexpr GstClockTime oldestFrame = 3 * GST_SECOND;

// Has a camera keep its rate in a dim room, where it would else take longer for each frame. The names that
// the kernel has had for it; a driver without them, or a source that is none of the kernel's, stays as it is.
void keepRate(GstElement *source)
{
    setIfPresent(source, "extra-controls", "controls,exposure_dynamic_framerate=0,exposure_auto_priority=0");
}

// No other bytes of a picture's own data are these; a small picture for previews has them at the beginning.
bool hasItsEnd(GstBuffer *jpeg)
{
    constexpr std::array<guint8, 2> endMarker{0xff, 0xd9};
    GstMapInfo data;
    if (!gst_buffer_map(jpeg, &data, GST_MAP_READ))
        return false;
    const guint8 *middle = data.data + data.size / 2;
    const guint8 *end = data.data + data.size;
    const bool isFound = std::find_end(middle, end, endMarker.begin(), endMarker.end()) != end;
    gst_buffer_unmap(jpeg, &data);
    return isFound;
}

// No queue and no converter: what the formats need is done once for each use, at the size of that use. So it
// is with JPEG, of which mostly a part of the pixels or none are wanted.
QString frameElements(const CaptureMode &mode)
{
    QString elements;
    if (mode.coding == CaptureMode::Coding::H264)
        elements = QStringLiteral("h264parse ! %1 ! ").arg(QLatin1String(h264Decoder().description));
    return elements +
           QStringLiteral("appsink name=sink caps=\"video/x-raw;image/jpeg\" max-buffers=%1 drop=true "
                          "sync=false async=false qos=false enable-last-sample=false wait-on-eos=false")
               .arg(CameraPipeline::mostWaitingFrames);
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

bool CameraPipeline::build(GstDevice *device, const CaptureMode &mode)
{
    GstElement *source = gst_device_create_element(device, nullptr);
    if (!source)
        return false;
    auto *pipeline = GST_BIN(m_pipeline.get());
    gst_bin_add(pipeline, source);
    keepRate(source);
    QString fault;
    GstElement *frames = parseElements(frameElements(mode), &fault);
    if (!frames) {
        fail({CameraFault::Failed, fault});
        return false;
    }
    gst_bin_add(pipeline, frames);
    m_sink.reset(gst_bin_get_by_name(pipeline, "sink"));
    return gst_element_link_filtered(source, frames, fixedCaps(mode).get());
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

FramePtr CameraPipeline::nextFrame(std::chrono::milliseconds wait)
{
    const SampleHandle sample(
        gst_app_sink_try_pull_sample(GST_APP_SINK(m_sink.get()), GstClockTime(wait.count()) * GST_MSECOND));
    if (!sample)
        return {};
    auto frame = std::make_shared<CapturedFrame>();
    if (!gst_video_info_from_caps(&frame->info, gst_sample_get_caps(sample.get())))
        return {};
    GstBuffer *buffer = gst_sample_get_buffer(sample.get());
    frame->isDamaged =
        GST_BUFFER_FLAG_IS_SET(buffer, GST_BUFFER_FLAG_CORRUPTED) || (frame->isJpeg() && lacksItsEnd(buffer));
    // The driver's buffers for JPEG are as large as raw pictures, and few. Copied, a frame may be kept.
    frame->picture = frame->isJpeg() ? BufferHandle(gst_buffer_copy_deep(buffer)) : retain(buffer);
    frame->clockTime = captureTime(sample.get());
    return frame;
}

// Some cameras end none of their pictures, and lose nothing by it.
bool CameraPipeline::lacksItsEnd(GstBuffer *jpeg)
{
    const bool isEnded = hasItsEnd(jpeg);
    m_endsPictures = m_endsPictures || isEnded;
    return m_endsPictures && !isEnded;
}

// Of a frame without a time, or with one that cannot be, when it came.
GstClockTime CameraPipeline::captureTime(GstSample *sample) const
{
    const ClockHandle clock(gst_system_clock_obtain());
    const GstClockTime now = gst_clock_get_time(clock.get());
    const GstClockTime runningTime = gst_segment_to_running_time(
        gst_sample_get_segment(sample), GST_FORMAT_TIME, GST_BUFFER_PTS(gst_sample_get_buffer(sample)));
    if (!GST_CLOCK_TIME_IS_VALID(runningTime))
        return now;
    const GstClockTime time = gst_element_get_base_time(m_pipeline.get()) + runningTime;
    return time <= now && now - time < oldestFrame ? time : now;
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
