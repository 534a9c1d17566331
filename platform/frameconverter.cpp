#include "platform/frameconverter.h"

bool FrameConverter::convert(const GstVideoInfo &sourceInfo, GstBuffer *source, const QRect &part,
                             const GstVideoInfo &targetInfo, GstBuffer *target)
{
    if (!prepare(sourceInfo, part, targetInfo))
        return false;
    MappedFrame from(sourceInfo, source, GST_MAP_READ);
    MappedFrame to(targetInfo, target, GST_MAP_WRITE);
    if (!from.isValid() || !to.isValid())
        return false;
    gst_video_converter_frame(m_converter.get(), from.get(), to.get());
    return true;
}

bool FrameConverter::prepare(const GstVideoInfo &sourceInfo, const QRect &part,
                             const GstVideoInfo &targetInfo)
{
    if (m_converter && m_part == part && gst_video_info_is_equal(&m_sourceInfo, &sourceInfo) &&
        gst_video_info_is_equal(&m_targetInfo, &targetInfo))
        return true;
    m_sourceInfo = sourceInfo;
    m_targetInfo = targetInfo;
    m_part = part;
    // The rates play no part in the picture, but the converter refuses two that differ.
    GstVideoInfo from = sourceInfo;
    GstVideoInfo to = targetInfo;
    to.fps_n = from.fps_n;
    to.fps_d = from.fps_d;
    m_converter.reset(gst_video_converter_new(
        &from, &to,
        gst_structure_new("options", GST_VIDEO_CONVERTER_OPT_SRC_X, G_TYPE_INT, part.x(),
                          GST_VIDEO_CONVERTER_OPT_SRC_Y, G_TYPE_INT, part.y(),
                          GST_VIDEO_CONVERTER_OPT_SRC_WIDTH, G_TYPE_INT, part.width(),
                          GST_VIDEO_CONVERTER_OPT_SRC_HEIGHT, G_TYPE_INT, part.height(),
                          GST_VIDEO_CONVERTER_OPT_RESAMPLER_METHOD, GST_TYPE_VIDEO_RESAMPLER_METHOD, m_method,
                          GST_VIDEO_CONVERTER_OPT_DITHER_METHOD, GST_TYPE_VIDEO_DITHER_METHOD,
                          GST_VIDEO_DITHER_NONE, nullptr)));
    return m_converter != nullptr;
}

GstVideoInfo pictureInfo(GstVideoFormat format, const QSize &size)
{
    GstVideoInfo info;
    gst_video_info_init(&info);
    gst_video_info_set_format(&info, format, guint(size.width()), guint(size.height()));
    return info;
}
