#include "demo/deskpicture.h"

#include <algorithm>
#include <cstring>

namespace
{

constexpr int bytesPerPixel = 2;

GstVideoInfo videoInfo(GstVideoFormat format, int width, int height)
{
    GstVideoInfo info;
    gst_video_info_set_format(&info, format, guint(width), guint(height));
    return info;
}

// The pixels are borrowed.
GstBuffer *wrapped(uint8_t *pixels, gsize size)
{
    return gst_buffer_new_wrapped_full(GstMemoryFlags(0), pixels, size, 0, size, nullptr, nullptr);
}

// Two pixels share their colour in YUY2: a patch starts at an even one.
int even(int x)
{
    return x / 2 * 2;
}

} // namespace

DeskPicture::Patch::Patch(int width, int height, const GstVideoColorimetry &colorimetry)
    : m_surface(newSurface(even(width), height)),
      m_rgb(videoInfo(GST_VIDEO_FORMAT_BGRx, even(width), height)),
      m_yuv(videoInfo(GST_VIDEO_FORMAT_YUY2, even(width), height))
{
    m_yuv.colorimetry = colorimetry;
    m_converter.reset(gst_video_converter_new(&m_rgb, &m_yuv, nullptr));
    m_pixels.resize(m_yuv.size);
}

Cairo DeskPicture::Patch::paint(int x, int y)
{
    m_x = even(x);
    m_y = y;
    Cairo cairo(cairo_create(m_surface.get()));
    cairo_translate(cairo.get(), -m_x, -m_y);
    return cairo;
}

void DeskPicture::Patch::convert()
{
    cairo_surface_flush(m_surface.get());
    GstBuffer *drawn = wrapped(cairo_image_surface_get_data(m_surface.get()), m_rgb.size);
    GstBuffer *converted = wrapped(m_pixels.data(), m_pixels.size());
    GstVideoFrame from;
    GstVideoFrame to;
    if (gst_video_frame_map(&from, &m_rgb, drawn, GST_MAP_READ)) {
        if (gst_video_frame_map(&to, &m_yuv, converted, GST_MAP_WRITE)) {
            gst_video_converter_frame(m_converter.get(), &from, &to);
            gst_video_frame_unmap(&to);
        }
        gst_video_frame_unmap(&from);
    }
    gst_buffer_unref(drawn);
    gst_buffer_unref(converted);
}

void DeskPicture::Patch::layOver(uint8_t *picture, const GstVideoInfo &info) const
{
    const int left = std::max(m_x, 0);
    const int right = std::min(m_x + m_yuv.width, info.width);
    const int top = std::max(m_y, 0);
    const int bottom = std::min(m_y + m_yuv.height, info.height);
    for (int y = top; y < bottom && left < right; ++y) {
        std::memcpy(picture + gsize(y) * info.stride[0] + gsize(left) * bytesPerPixel,
                    m_pixels.data() + gsize(y - m_y) * m_yuv.stride[0] + gsize(left - m_x) * bytesPerPixel,
                    gsize(right - left) * bytesPerPixel);
    }
}

DeskPicture::DeskPicture(const GstVideoInfo &info)
    : m_info(info), m_scene(info.width, info.height), m_still(newSurface(info.width, info.height)),
      m_stillPixels(info.size),
      m_clock(m_scene.clockArea().width, m_scene.clockArea().height, info.colorimetry),
      m_pencil(m_scene.pencilArea(0).width, m_scene.pencilArea(0).height, info.colorimetry)
{
    m_scene.drawStill(Cairo(cairo_create(m_still.get())).get());
    Patch whole(info.width, info.height, info.colorimetry);
    {
        const Cairo cairo = whole.paint(0, 0);
        cairo_set_source_surface(cairo.get(), m_still.get(), 0, 0);
        cairo_paint(cairo.get());
    }
    whole.convert();
    whole.layOver(m_stillPixels.data(), m_info);
}

GstBuffer *DeskPicture::frame(double seconds, std::time_t now)
{
    if (now != m_clockShows)
        drawClock(now);
    drawPencil(seconds);
    GstBuffer *buffer = gst_buffer_new_allocate(nullptr, m_info.size, nullptr);
    GstMapInfo map;
    if (gst_buffer_map(buffer, &map, GST_MAP_WRITE)) {
        std::memcpy(map.data, m_stillPixels.data(), m_info.size);
        m_clock.layOver(map.data, m_info);
        m_pencil.layOver(map.data, m_info);
        gst_buffer_unmap(buffer, &map);
    }
    return buffer;
}

void DeskPicture::drawClock(std::time_t now)
{
    localtime_r(&now, &m_time);
    const PixelRect area = m_scene.clockArea();
    {
        const Cairo cairo = m_clock.paint(area.x, area.y);
        cairo_set_source_surface(cairo.get(), m_still.get(), 0, 0);
        cairo_paint(cairo.get());
        m_scene.drawTime(cairo.get(), m_time);
    }
    m_clock.convert();
    m_clockShows = now;
}

void DeskPicture::drawPencil(double seconds)
{
    const PixelRect area = m_scene.pencilArea(seconds);
    {
        const Cairo cairo = m_pencil.paint(area.x, area.y);
        cairo_set_source_surface(cairo.get(), m_still.get(), 0, 0);
        cairo_paint(cairo.get());
        // The pencil's surroundings reach into the clock.
        m_scene.drawTime(cairo.get(), m_time);
        m_scene.drawPencil(cairo.get(), seconds);
    }
    m_pencil.convert();
}
