#include "tests/plugins/framecoder.h"
#include "tests/plugins/h264coder.h"
#include "tests/plugins/jpegcoder.h"

namespace
{

class RawCoder : public FrameCoder
{
public:
    explicit RawCoder(const GstVideoInfo &info) : m_info(info)
    {
        // The converter refuses two pictures of different rates; a drawn picture has none.
        m_info.fps_n = 0;
        m_info.fps_d = 1;
    }
    GstVideoColorimetry colorimetry() const override
    {
        // RGB has no matrix to draw in.
        return GST_VIDEO_INFO_IS_YUV(&m_info) ? m_info.colorimetry : jpegColorimetry();
    }
    GstBuffer *encode(Picture *picture) override
    {
        if (!m_converter)
            m_converter.reset(gst_video_converter_new(&picture->info(), &m_info, nullptr));
        GstBuffer *drawn = picture->wrapped();
        GstBuffer *converted = gst_buffer_new_allocate(nullptr, m_info.size, nullptr);
        GstVideoFrame from;
        GstVideoFrame to;
        if (gst_video_frame_map(&from, &picture->info(), drawn, GST_MAP_READ)) {
            if (gst_video_frame_map(&to, &m_info, converted, GST_MAP_WRITE)) {
                gst_video_converter_frame(m_converter.get(), &from, &to);
                gst_video_frame_unmap(&to);
            }
            gst_video_frame_unmap(&from);
        }
        gst_buffer_unref(drawn);
        return converted;
    }

private:
    struct FreeConverter {
        void operator()(GstVideoConverter *converter) const { gst_video_converter_free(converter); }
    };
    GstVideoInfo m_info;
    std::unique_ptr<GstVideoConverter, FreeConverter> m_converter;
};

} // namespace

std::unique_ptr<FrameCoder> FrameCoder::make(const GstCaps *fixedCaps)
{
    const GstStructure *format = gst_caps_get_structure(fixedCaps, 0);
    if (gst_structure_has_name(format, "image/jpeg"))
        return std::make_unique<JpegCoder>();
    if (gst_structure_has_name(format, "video/x-h264"))
        return std::make_unique<H264Coder>();
    GstVideoInfo info;
    if (gst_video_info_from_caps(&info, fixedCaps))
        return std::make_unique<RawCoder>(info);
    return nullptr;
}
