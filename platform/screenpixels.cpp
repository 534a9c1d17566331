#include "platform/screenpixels.h"

#include "platform/largepixels.h"
#include "platform/planecolours.h"

#include <libyuv.h>

namespace
{

using ToBgrx = decltype(&libyuv::RAWToARGB);

// libyuv names the bytes of a pixel from the last to the first. Null for what is no RGB picture, and for what
// is BGRx already.
ToBgrx conversionOf(GstVideoFormat format)
{
    switch (format) {
    case GST_VIDEO_FORMAT_RGB:
        return libyuv::RAWToARGB;
    case GST_VIDEO_FORMAT_BGR:
        return libyuv::RGB24ToARGB;
    case GST_VIDEO_FORMAT_RGBx:
    case GST_VIDEO_FORMAT_RGBA:
        return libyuv::ABGRToARGB;
    case GST_VIDEO_FORMAT_xRGB:
    case GST_VIDEO_FORMAT_ARGB:
        return libyuv::BGRAToARGB;
    case GST_VIDEO_FORMAT_xBGR:
    case GST_VIDEO_FORMAT_ABGR:
        return libyuv::RGBAToARGB;
    default:
        return nullptr;
    }
}

bool isBgrx(GstVideoFormat format)
{
    return format == GST_VIDEO_FORMAT_BGRx || format == GST_VIDEO_FORMAT_BGRA;
}

} // namespace

bool ScreenPixels::convert(const FramePtr &frame, const QRect &part, FramePlanes *planes, cv::Mat *pixels)
{
    const QSize size(pixels->cols, pixels->rows);
    if (const std::optional<PicturePlanes> found = planes->read(frame, part, size))
        return convertPlanes(*found, pixels);
    if (frame->isJpeg() || frame->isDamaged)
        return false;
    if (convertRgb(*frame, part, pixels))
        return true;
    const GstVideoInfo target = pictureInfo(GST_VIDEO_FORMAT_BGRx, size);
    return m_general.convert(frame->info, frame->picture.get(), part, target,
                             wrapPixels(pixels->data, target.size).get());
}

// Scaled before they get their colour: that way there are half the bytes to scale, and as many to colour as
// are shown.
bool ScreenPixels::convertPlanes(const PicturePlanes &planes, cv::Mat *pixels)
{
    const QSize size(pixels->cols, pixels->rows);
    const int stride = int(pixels->step);
    if (planes.size == size && toBgrx(planes, pixels->data, stride))
        return true;
    const bool isHalfHigh = planes.colourSize.height() < planes.size.height();
    const QSize colourSize(halved(size).width(), isHalfHigh ? halved(size).height() : size.height());
    return toBgrx(scaled(planes, size, colourSize, &m_scaled), pixels->data, stride);
}

bool ScreenPixels::convertRgb(const CapturedFrame &frame, const QRect &part, cv::Mat *pixels)
{
    const GstVideoFormat format = GST_VIDEO_INFO_FORMAT(&frame.info);
    const ToBgrx toBgrx = conversionOf(format);
    if (!toBgrx && !isBgrx(format))
        return false;
    MappedFrame mapped(frame.info, frame.picture.get(), GST_MAP_READ);
    if (!mapped.isValid())
        return false;
    constexpr int bgrxBytes = 4;
    const int pixelBytes = GST_VIDEO_FRAME_COMP_PSTRIDE(mapped.get(), 0);
    int stride = GST_VIDEO_FRAME_PLANE_STRIDE(mapped.get(), 0);
    const auto *start = static_cast<const uint8_t *>(GST_VIDEO_FRAME_PLANE_DATA(mapped.get(), 0)) +
                        ptrdiff_t(part.y()) * stride + ptrdiff_t(part.x()) * pixelBytes;
    if (pixelBytes != bgrxBytes) { // libyuv scales no others
        createLarge(&m_unscaled, part.height(), part.width(), CV_8UC4);
        toBgrx(start, stride, m_unscaled.data, int(m_unscaled.step), part.width(), part.height());
        start = m_unscaled.data;
        stride = int(m_unscaled.step);
    }
    const int shownStride = int(pixels->step);
    if (libyuv::ARGBScale(start, stride, part.width(), part.height(), pixels->data, shownStride, pixels->cols,
                          pixels->rows, libyuv::kFilterBox) != 0)
        return false;
    if (toBgrx && pixelBytes == bgrxBytes)
        toBgrx(pixels->data, shownStride, pixels->data, shownStride, pixels->cols, pixels->rows);
    return true;
}
