#include "platform/pictureplanes.h"

#include "platform/largepixels.h"
#include "platform/planescaler.h"

#include <libyuv.h>

#include <utility>

namespace
{

// Cameras' formats of two bytes a pixel, all of which read as one of two when the colours are swapped.
struct Packing {
    decltype(&libyuv::YUY2ToI422) split;
    decltype(&libyuv::YUY2ToI420) splitHalfHigh; // the colours
    bool isSwapped;
};

std::optional<Packing> packingOf(GstVideoFormat format)
{
    switch (format) {
    case GST_VIDEO_FORMAT_YUY2:
    case GST_VIDEO_FORMAT_YVYU:
        return Packing{libyuv::YUY2ToI422, libyuv::YUY2ToI420, format == GST_VIDEO_FORMAT_YVYU};
    case GST_VIDEO_FORMAT_UYVY:
    case GST_VIDEO_FORMAT_VYUY:
        return Packing{libyuv::UYVYToI422, libyuv::UYVYToI420, format == GST_VIDEO_FORMAT_VYUY};
    default:
        return {};
    }
}

bool isPlanar(GstVideoFormat format)
{
    return format == GST_VIDEO_FORMAT_I420 || format == GST_VIDEO_FORMAT_YV12 ||
           format == GST_VIDEO_FORMAT_Y42B || format == GST_VIDEO_FORMAT_Y444;
}

bool isHalfPlanar(GstVideoFormat format)
{
    return format == GST_VIDEO_FORMAT_NV12 || format == GST_VIDEO_FORMAT_NV21 ||
           format == GST_VIDEO_FORMAT_NV16 || format == GST_VIDEO_FORMAT_NV61;
}

PicturePlanes unpacked(GstVideoFrame *frame, const QRect &part, const Packing &packing, PlaneMemory *memory)
{
    const auto *packed = static_cast<const uint8_t *>(GST_VIDEO_FRAME_PLANE_DATA(frame, 0)) +
                         ptrdiff_t(part.y()) * GST_VIDEO_FRAME_PLANE_STRIDE(frame, 0) +
                         ptrdiff_t(part.x()) * 2;
    const QSize colourSize((part.width() + 1) / 2, part.height());
    memory->create(part.size(), colourSize);
    PicturePlanes planes = memory->planes(part.size(), colourSize, frame->info.colorimetry);
    packing.split(packed, GST_VIDEO_FRAME_PLANE_STRIDE(frame, 0), memory->row(0, 0), planes.stride[0],
                  memory->row(1, 0), planes.stride[1], memory->row(2, 0), planes.stride[2], part.width(),
                  part.height());
    if (packing.isSwapped)
        std::swap(planes.data[1], planes.data[2]);
    return planes;
}

PicturePlanes asTheyStand(GstVideoFrame *frame)
{
    PicturePlanes planes;
    for (int i = 0; i < 3; ++i) {
        planes.data[i] = GST_VIDEO_FRAME_COMP_DATA(frame, i);
        planes.stride[i] = GST_VIDEO_FRAME_COMP_STRIDE(frame, i);
    }
    planes.size = {GST_VIDEO_FRAME_WIDTH(frame), GST_VIDEO_FRAME_HEIGHT(frame)};
    planes.colourSize = {GST_VIDEO_FRAME_COMP_WIDTH(frame, 1), GST_VIDEO_FRAME_COMP_HEIGHT(frame, 1)};
    planes.colours = frame->info.colorimetry;
    return planes;
}

// Both colours in one plane, byte by byte in turn.
PicturePlanes parted(GstVideoFrame *frame, const QRect &part, PlaneMemory *memory)
{
    PicturePlanes planes = cropped(asTheyStand(frame), part);
    const bool isSwapped = GST_VIDEO_FRAME_COMP_POFFSET(frame, 1) != 0;
    const int x = GST_VIDEO_FORMAT_INFO_SCALE_WIDTH(frame->info.finfo, 1, part.x());
    const int y = GST_VIDEO_FORMAT_INFO_SCALE_HEIGHT(frame->info.finfo, 1, part.y());
    const int stride = GST_VIDEO_FRAME_PLANE_STRIDE(frame, 1);
    const auto *both =
        static_cast<const uint8_t *>(GST_VIDEO_FRAME_PLANE_DATA(frame, 1)) + ptrdiff_t(y) * stride + 2L * x;
    memory->create({}, planes.colourSize);
    const PicturePlanes colour = memory->planes(planes.size, planes.colourSize, planes.colours);
    libyuv::SplitUVPlane(both, stride, memory->row(1, 0), colour.stride[1], memory->row(2, 0),
                         colour.stride[2], planes.colourSize.width(), planes.colourSize.height());
    for (int i = 1; i < 3; ++i) {
        planes.data[i] = colour.data[isSwapped ? 3 - i : i];
        planes.stride[i] = colour.stride[i];
    }
    return planes;
}

} // namespace

PicturePlanes cropped(const PicturePlanes &planes, const QRect &part)
{
    PicturePlanes crop = planes;
    const int w = planes.size.width();
    const int h = planes.size.height();
    const int colourWidth = planes.colourSize.width();
    const int colourHeight = planes.colourSize.height();
    crop.size = part.size();
    crop.colourSize = {(part.width() * colourWidth + w - 1) / w, (part.height() * colourHeight + h - 1) / h};
    crop.data[0] += ptrdiff_t(part.y()) * planes.stride[0] + part.x();
    for (int i = 1; i < 3; ++i)
        crop.data[i] +=
            ptrdiff_t(part.y()) * colourHeight / h * planes.stride[i] + ptrdiff_t(part.x()) * colourWidth / w;
    return crop;
}

void PlaneMemory::create(const QSize &first, const QSize &others)
{
    for (int i = 0; i < 3; ++i) {
        const QSize &size = i == 0 ? first : others;
        if (!size.isEmpty())
            createLarge(&m_planes[i], size.height(), size.width(), CV_8UC1);
    }
}

PicturePlanes PlaneMemory::planes(const QSize &size, const QSize &colourSize,
                                  const GstVideoColorimetry &colours) const
{
    PicturePlanes planes;
    for (int i = 0; i < 3; ++i) {
        planes.data[i] = m_planes[i].data;
        planes.stride[i] = int(m_planes[i].step);
    }
    planes.size = size;
    planes.colourSize = colourSize;
    planes.colours = colours;
    return planes;
}

std::optional<PicturePlanes> planesOf(GstVideoFrame *frame, const QRect &part, PlaneMemory *memory)
{
    const GstVideoFormat format = GST_VIDEO_FRAME_FORMAT(frame);
    if (const std::optional<Packing> packing = packingOf(format))
        return unpacked(frame, part, *packing, memory);
    if (isHalfPlanar(format))
        return parted(frame, part, memory);
    if (isPlanar(format))
        return cropped(asTheyStand(frame), part);
    return {};
}

bool unpackInto(GstVideoFrame *i420, GstVideoFrame *frame)
{
    const std::optional<Packing> packing = packingOf(GST_VIDEO_FRAME_FORMAT(frame));
    const int width = GST_VIDEO_FRAME_WIDTH(frame);
    const int height = GST_VIDEO_FRAME_HEIGHT(frame);
    if (!packing || width != GST_VIDEO_FRAME_WIDTH(i420) || height != GST_VIDEO_FRAME_HEIGHT(i420))
        return false;
    const int second = packing->isSwapped ? 2 : 1;
    const int third = 3 - second;
    const auto data = [i420](int plane) {
        return static_cast<uint8_t *>(GST_VIDEO_FRAME_PLANE_DATA(i420, plane));
    };
    packing->splitHalfHigh(static_cast<const uint8_t *>(GST_VIDEO_FRAME_PLANE_DATA(frame, 0)),
                           GST_VIDEO_FRAME_PLANE_STRIDE(frame, 0), data(0),
                           GST_VIDEO_FRAME_PLANE_STRIDE(i420, 0), data(second),
                           GST_VIDEO_FRAME_PLANE_STRIDE(i420, second), data(third),
                           GST_VIDEO_FRAME_PLANE_STRIDE(i420, third), width, height);
    return true;
}

PicturePlanes scaled(const PicturePlanes &planes, const QSize &size, const QSize &colourSize,
                     PlaneMemory *memory)
{
    memory->create(size, colourSize);
    PicturePlanes target = memory->planes(size, colourSize, planes.colours);
    for (int i = 0; i < 3; ++i) {
        if (planes.sizeOf(i) == target.sizeOf(i)) {
            target.data[i] = planes.data[i];
            target.stride[i] = planes.stride[i];
        } else {
            scalePlane(planes.data[i], planes.stride[i], planes.sizeOf(i), memory->row(i, 0),
                       target.stride[i], target.sizeOf(i));
        }
    }
    return target;
}
