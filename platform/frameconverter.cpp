#include "platform/frameconverter.h"

namespace
{

// The converter refuses two infos whose rates or interlacing differ. The rates play no part in the picture,
// and the lines of two fields that stand in turn are one picture as they are.
GstVideoInfo plain(GstVideoInfo info)
{
    info.fps_n = 0;
    info.fps_d = 1;
    info.interlace_mode = GST_VIDEO_INTERLACE_MODE_PROGRESSIVE;
    return info;
}

} // namespace

bool FrameConverter::convert(const GstVideoInfo &sourceInfo, GstBuffer *source, const QRect &part,
                             const GstVideoInfo &targetInfo, GstBuffer *target)
{
    if (!prepare(plain(sourceInfo), part, plain(targetInfo)))
        return false;
    MappedFrame from(m_sourceInfo, source, GST_MAP_READ);
    MappedFrame to(m_targetInfo, target, GST_MAP_WRITE);
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
    m_converter.reset(gst_video_converter_new(
        &m_sourceInfo, &m_targetInfo,
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

BufferHandle wrapPixels(uint8_t *pixels, size_t bytes)
{
    return BufferHandle(
        gst_buffer_new_wrapped_full(GstMemoryFlags(0), pixels, bytes, 0, bytes, nullptr, nullptr));
}
