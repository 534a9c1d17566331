#include "tests/plugins/h264coder.h"

#include <gst/app/gstappsink.h>
#include <gst/app/gstappsrc.h>

namespace
{

// No frame of these sizes takes longer; a broken encoder must not hang a test.
constexpr GstClockTime encodeLimit = 2 * GST_SECOND;
constexpr GstClockTime nominalPeriod = GST_SECOND / 30;

// The encoder takes no 4:2:2 that common decoders know, hence the converter.
constexpr const char *description = "appsrc name=in format=time ! videoconvert ! video/x-raw,format=I420 ! "
                                    "x264enc tune=zerolatency speed-preset=ultrafast key-int-max=1 ! "
                                    "h264parse config-interval=-1 ! "
                                    "video/x-h264,stream-format=byte-stream,alignment=au ! "
                                    "appsink name=out sync=false";

} // namespace

H264Coder::~H264Coder()
{
    if (!m_pipeline)
        return;
    gst_element_set_state(m_pipeline, GST_STATE_NULL);
    gst_object_unref(m_in);
    gst_object_unref(m_out);
    gst_object_unref(m_pipeline);
}

GstVideoColorimetry H264Coder::colorimetry() const
{
    return {GST_VIDEO_COLOR_RANGE_16_235, GST_VIDEO_COLOR_MATRIX_BT709, GST_VIDEO_TRANSFER_BT709,
            GST_VIDEO_COLOR_PRIMARIES_BT709};
}

bool H264Coder::start(const Picture &picture)
{
    m_pipeline = gst_parse_launch(description, nullptr);
    if (!m_pipeline)
        return false;
    m_in = gst_bin_get_by_name(GST_BIN(m_pipeline), "in");
    m_out = gst_bin_get_by_name(GST_BIN(m_pipeline), "out");
    GstCaps *caps = gst_video_info_to_caps(&picture.info());
    gst_caps_set_simple(caps, "framerate", GST_TYPE_FRACTION, 30, 1, nullptr);
    gst_app_src_set_caps(GST_APP_SRC(m_in), caps);
    gst_caps_unref(caps);
    gst_element_set_state(m_pipeline, GST_STATE_PLAYING);
    return true;
}

GstBuffer *H264Coder::encode(Picture *picture)
{
    if (!m_pipeline && !start(*picture))
        return nullptr;
    GstBuffer *drawn = picture->wrapped();
    GST_BUFFER_PTS(drawn) = m_time;
    GST_BUFFER_DURATION(drawn) = nominalPeriod;
    m_time += nominalPeriod;
    gst_app_src_push_buffer(GST_APP_SRC(m_in), drawn);
    GstSample *sample = gst_app_sink_try_pull_sample(GST_APP_SINK(m_out), encodeLimit);
    if (!sample)
        return nullptr;
    GstBuffer *encoded = gst_buffer_copy(gst_sample_get_buffer(sample));
    gst_sample_unref(sample);
    return encoded;
}
