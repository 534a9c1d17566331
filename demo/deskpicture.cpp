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
    : surface_(newSurface(even(width), height)), rgb_(videoInfo(GST_VIDEO_FORMAT_BGRx, even(width), height)),
      yuv_(videoInfo(GST_VIDEO_FORMAT_YUY2, even(width), height))
{
    yuv_.colorimetry = colorimetry;
    converter_.reset(gst_video_converter_new(&rgb_, &yuv_, nullptr));
    pixels_.resize(yuv_.size);
}

Cairo DeskPicture::Patch::paint(int x, int y)
{
    x_ = even(x);
    y_ = y;
    Cairo cairo(cairo_create(surface_.get()));
    cairo_translate(cairo.get(), -x_, -y_);
    return cairo;
}

void DeskPicture::Patch::convert()
{
    cairo_surface_flush(surface_.get());
    GstBuffer *drawn = wrapped(cairo_image_surface_get_data(surface_.get()), rgb_.size);
    GstBuffer *converted = wrapped(pixels_.data(), pixels_.size());
    GstVideoFrame from;
    GstVideoFrame to;
    if (gst_video_frame_map(&from, &rgb_, drawn, GST_MAP_READ)) {
        if (gst_video_frame_map(&to, &yuv_, converted, GST_MAP_WRITE)) {
            gst_video_converter_frame(converter_.get(), &from, &to);
            gst_video_frame_unmap(&to);
        }
        gst_video_frame_unmap(&from);
    }
    gst_buffer_unref(drawn);
    gst_buffer_unref(converted);
}

void DeskPicture::Patch::layOver(uint8_t *picture, const GstVideoInfo &info) const
{
    const int left = std::max(x_, 0);
    const int right = std::min(x_ + yuv_.width, info.width);
    const int top = std::max(y_, 0);
    const int bottom = std::min(y_ + yuv_.height, info.height);
    for (int y = top; y < bottom && left < right; ++y) {
        std::memcpy(picture + gsize(y) * info.stride[0] + gsize(left) * bytesPerPixel,
                    pixels_.data() + gsize(y - y_) * yuv_.stride[0] + gsize(left - x_) * bytesPerPixel,
                    gsize(right - left) * bytesPerPixel);
    }
}

DeskPicture::DeskPicture(const GstVideoInfo &info)
    : info_(info), scene_(info.width, info.height), still_(newSurface(info.width, info.height)),
      stillPixels_(info.size), clock_(scene_.clockArea().width, scene_.clockArea().height, info.colorimetry),
      pencil_(scene_.pencilArea(0).width, scene_.pencilArea(0).height, info.colorimetry)
{
    scene_.drawStill(Cairo(cairo_create(still_.get())).get());
    Patch whole(info.width, info.height, info.colorimetry);
    {
        const Cairo cairo = whole.paint(0, 0);
        cairo_set_source_surface(cairo.get(), still_.get(), 0, 0);
        cairo_paint(cairo.get());
    }
    whole.convert();
    whole.layOver(stillPixels_.data(), info_);
}

GstBuffer *DeskPicture::frame(double seconds, std::time_t now)
{
    if (now != clockShows_)
        drawClock(now);
    drawPencil(seconds);
    GstBuffer *buffer = gst_buffer_new_allocate(nullptr, info_.size, nullptr);
    GstMapInfo map;
    if (gst_buffer_map(buffer, &map, GST_MAP_WRITE)) {
        std::memcpy(map.data, stillPixels_.data(), info_.size);
        clock_.layOver(map.data, info_);
        pencil_.layOver(map.data, info_);
        gst_buffer_unmap(buffer, &map);
    }
    return buffer;
}

void DeskPicture::drawClock(std::time_t now)
{
    localtime_r(&now, &time_);
    const PixelRect area = scene_.clockArea();
    {
        const Cairo cairo = clock_.paint(area.x, area.y);
        cairo_set_source_surface(cairo.get(), still_.get(), 0, 0);
        cairo_paint(cairo.get());
        scene_.drawTime(cairo.get(), time_);
    }
    clock_.convert();
    clockShows_ = now;
}

void DeskPicture::drawPencil(double seconds)
{
    const PixelRect area = scene_.pencilArea(seconds);
    {
        const Cairo cairo = pencil_.paint(area.x, area.y);
        cairo_set_source_surface(cairo.get(), still_.get(), 0, 0);
        cairo_paint(cairo.get());
        // The pencil's surroundings reach into the clock.
        scene_.drawTime(cairo.get(), time_);
        scene_.drawPencil(cairo.get(), seconds);
    }
    pencil_.convert();
}
