#include "platform/stillpicture.h"

#include "platform/frameconverter.h"
#include "platform/jpegcheck.h"
#include "util/files/largebytes.h"
#include "util/files/photofile.h"

namespace
{

bool isWhole(const CapturedFrame &frame)
{
    if (!frame.jpeg)
        return true;
    GstMapInfo mapped;
    if (!gst_buffer_map(frame.jpeg.get(), &mapped, GST_MAP_READ))
        return false;
    const bool whole = isWholeJpeg(mapped.data, mapped.size);
    gst_buffer_unmap(frame.jpeg.get(), &mapped);
    return whole;
}

// The first whole frame from now on. Of a camera that gives none in that time the last is better than
// nothing.
FramePtr nextWholeFrame(const NewestFrame &frames, std::chrono::steady_clock::time_point limit)
{
    FramePtr frame = frames.waitForOther(nullptr, limit);
    while (frame && !isWhole(*frame)) {
        FramePtr next = frames.waitForOther(frame, limit);
        if (!next)
            return frame;
        frame = std::move(next);
    }
    return frame;
}

} // namespace

bool saveStill(const NewestFrame &frames, const Zoom &zoom, const QString &path,
               std::chrono::milliseconds wait)
{
    const FramePtr frame = nextWholeFrame(frames, std::chrono::steady_clock::now() + wait);
    if (!frame)
        return false;
    const QSize size(GST_VIDEO_INFO_WIDTH(&frame->info), GST_VIDEO_INFO_HEIGHT(&frame->info));
    const GstVideoInfo rgb = pictureInfo(GST_VIDEO_FORMAT_RGB, size);
    LargeBytes pixels(GST_VIDEO_INFO_SIZE(&rgb));
    if (pixels.size() == 0)
        return false;
    const BufferHandle picture(gst_buffer_new_wrapped_full(GstMemoryFlags(0), pixels.data(), pixels.size(), 0,
                                                           pixels.size(), nullptr, nullptr));
    FrameConverter converter(GST_VIDEO_RESAMPLER_METHOD_CUBIC);
    return converter.convert(frame->info, frame->picture.get(), zoom.shownPart(size), rgb, picture.get()) &&
           writePhoto(path, QImage(pixels.data(), size.width(), size.height(),
                                   GST_VIDEO_INFO_PLANE_STRIDE(&rgb, 0), QImage::Format_RGB888)) == 0;
}
