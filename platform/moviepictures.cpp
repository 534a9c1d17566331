#include "platform/moviepictures.h"

#include "platform/planecolours.h"
#include "platform/planescaler.h"

namespace
{

const QSize largest(1920, 1080);

// Scaled straight into the picture, where the colours are put right.
void fill(const PicturePlanes &planes, GstVideoFrame *picture)
{
    for (int i = 0; i < 3; ++i) {
        scalePlane(planes.data[i], planes.stride[i], planes.sizeOf(i), GST_VIDEO_FRAME_COMP_DATA(picture, i),
                   GST_VIDEO_FRAME_COMP_STRIDE(picture, i),
                   {GST_VIDEO_FRAME_COMP_WIDTH(picture, i), GST_VIDEO_FRAME_COMP_HEIGHT(picture, i)});
    }
    changeColours(planes.colours, picture);
}

} // namespace

GstVideoInfo MoviePictures::infoOf(const QSize &frame)
{
    const bool isTooLarge = frame.width() > largest.width() || frame.height() > largest.height();
    const QSize size = isTooLarge ? frame.scaled(largest, Qt::KeepAspectRatio) : frame;
    // The encoder takes even sizes only.
    GstVideoInfo info =
        pictureInfo(GST_VIDEO_FORMAT_I420, {qMax(2, size.width() & ~1), qMax(2, size.height() & ~1)});
    gst_video_colorimetry_from_string(&info.colorimetry, GST_VIDEO_COLORIMETRY_BT709);
    return info;
}

FramePtr MoviePictures::make(const FramePtr &frame, FramePlanes *planes, const Zoom &zoom)
{
    auto made = std::make_shared<CapturedFrame>();
    made->info = infoOf(frame->size());
    made->clockTime = frame->clockTime;
    made->picture = BufferHandle(gst_buffer_new_allocate(nullptr, made->info.size, nullptr));
    const QRect part = zoom.shownPart(frame->size());
    if (const auto found = planes->read(frame, part, made->size())) {
        MappedFrame picture(made->info, made->picture.get(), GST_MAP_READWRITE);
        if (!picture.isValid())
            return {};
        fill(*found, picture.get());
        return made;
    }
    if (frame->isJpeg() || frame->isDamaged ||
        !m_general.convert(frame->info, frame->picture.get(), part, made->info, made->picture.get()))
        return {};
    return made;
}
