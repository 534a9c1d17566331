#include "tests/plugins/picture.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace
{

// The width of a JPEG block pair, so that an encoder may read whole blocks.
constexpr int strideUnit = 16;

uint8_t rounded(double value)
{
    return static_cast<uint8_t>(std::lround(std::clamp(value, 0.0, 255.0)));
}

} // namespace

Picture::Picture(int width, int height, const GstVideoColorimetry &colorimetry)
{
    gst_video_info_set_format(&m_info, GST_VIDEO_FORMAT_Y42B, width, height);
    m_info.colorimetry = colorimetry;
    const int stride = (width + strideUnit - 1) / strideUnit * strideUnit;
    const gsize lumaSize = gsize(stride) * height;
    m_info.stride[0] = stride;
    m_info.stride[1] = m_info.stride[2] = stride / 2;
    m_info.offset[0] = 0;
    m_info.offset[1] = lumaSize;
    m_info.offset[2] = lumaSize + lumaSize / 2;
    m_info.size = 2 * lumaSize;
    m_data.resize(m_info.size + strideUnit);
}

Yuv Picture::colour(uint32_t rgb) const
{
    const double r = (rgb >> 16 & 0xff) / 255.0;
    const double g = (rgb >> 8 & 0xff) / 255.0;
    const double b = (rgb & 0xff) / 255.0;
    double kr = 0.299;
    double kb = 0.114;
    gst_video_color_matrix_get_Kr_Kb(m_info.colorimetry.matrix, &kr, &kb);
    std::array<gint, GST_VIDEO_MAX_COMPONENTS> offset = {};
    std::array<gint, GST_VIDEO_MAX_COMPONENTS> scale = {};
    gst_video_color_range_offsets(m_info.colorimetry.range, m_info.finfo, offset.data(), scale.data());
    const double y = kr * r + (1 - kr - kb) * g + kb * b;
    return {rounded(offset[0] + scale[0] * y), rounded(offset[1] + scale[1] * (b - y) / (2 * (1 - kb))),
            rounded(offset[2] + scale[2] * (r - y) / (2 * (1 - kr)))};
}

void Picture::fillRect(int x, int y, int width, int height, Yuv colour)
{
    const int left = std::clamp(x, 0, this->width());
    const int right = std::clamp(x + width, left, this->width());
    const int top = std::clamp(y, 0, this->height());
    const int bottom = std::clamp(y + height, top, this->height());
    // Chroma covers two pixels: the one in which a side falls goes with the rectangle.
    const size_t chromaLeft = left / 2;
    const size_t chromaWidth = (right + 1) / 2 - chromaLeft;
    for (int row = top; row < bottom; ++row) {
        std::memset(planeRow(0, row) + left, colour.y, size_t(right - left));
        std::memset(planeRow(1, row) + chromaLeft, colour.u, chromaWidth);
        std::memset(planeRow(2, row) + chromaLeft, colour.v, chromaWidth);
    }
}

uint8_t *Picture::planeRow(int plane, int row)
{
    return m_data.data() + m_info.offset[plane] + size_t(row) * m_info.stride[plane];
}

GstBuffer *Picture::wrapped()
{
    GstBuffer *buffer = gst_buffer_new_wrapped_full(GST_MEMORY_FLAG_READONLY, m_data.data(), m_info.size, 0,
                                                    m_info.size, nullptr, nullptr);
    gst_buffer_add_video_meta_full(buffer, GST_VIDEO_FRAME_FLAG_NONE, GST_VIDEO_FORMAT_Y42B, width(),
                                   height(), 3, m_info.offset, m_info.stride);
    return buffer;
}
