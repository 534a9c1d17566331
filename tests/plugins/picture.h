// A picture being drawn: planar YUV 4:2:2, which becomes YUY2 or JPEG at little cost.
#pragma once

#include <array>
#include <cstdint>
#include <gst/video/video.h>
#include <vector>

struct Yuv {
    uint8_t y, u, v;
};

class Picture
{
public:
    Picture(int width, int height, const GstVideoColorimetry &colorimetry);

    int width() const { return GST_VIDEO_INFO_WIDTH(&m_info); }
    int height() const { return GST_VIDEO_INFO_HEIGHT(&m_info); }

    // 0xRRGGBB in this picture's colorimetry.
    Yuv colour(uint32_t rgb) const;
    // Parts outside the picture are left out.
    void fillRect(int x, int y, int width, int height, Yuv colour);
    void fill(Yuv colour) { fillRect(0, 0, width(), height(), colour); }

    // A row of plane Y, U or V (0, 1, 2); reading up to 16 pixels past a row's end is allowed.
    uint8_t *planeRow(int plane, int row);

    // Borrows the picture's memory: it must outlive the buffer.
    GstBuffer *wrapped();
    const GstVideoInfo &info() const { return m_info; }

private:
    GstVideoInfo m_info = {};
    std::vector<uint8_t> m_data;
};
