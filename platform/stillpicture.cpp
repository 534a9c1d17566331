#include "platform/stillpicture.h"

#include "platform/capturelog.h"
#include "platform/frameconverter.h"
#include "platform/jpegcheck.h"
#include "util/files/largebytes.h"
#include "util/files/photofile.h"

#include <QFile>

#include <cerrno>
#include <chrono>
#include <utility>

namespace
{

using namespace std::chrono_literals;

constexpr auto wholeFrameWait = 1s;

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

// The first whole frame from the one of the order on. Of a camera that gives none in that time the last is
// better than nothing.
FramePtr wholeFrame(const StillOrder &order)
{
    const auto limit = std::chrono::steady_clock::now() + wholeFrameWait;
    FramePtr frame = order.frame;
    while (frame && !isWhole(*frame)) {
        FramePtr next = order.frames->waitForOther(frame, limit);
        if (!next)
            return frame;
        frame = std::move(next);
    }
    return frame;
}

// An RGB image in memory that comes fast; null when there is none.
QImage largeImage(const GstVideoInfo &rgb)
{
    auto *pixels = new LargeBytes(GST_VIDEO_INFO_SIZE(&rgb));
    if (pixels->size() == 0) {
        delete pixels;
        return {};
    }
    return QImage(
        pixels->data(), GST_VIDEO_INFO_WIDTH(&rgb), GST_VIDEO_INFO_HEIGHT(&rgb),
        GST_VIDEO_INFO_PLANE_STRIDE(&rgb, 0), QImage::Format_RGB888,
        [](void *memory) { delete static_cast<LargeBytes *>(memory); }, pixels);
}

// The part of the frame that the zoom shows; null when it cannot be converted.
QImage rgbPicture(const CapturedFrame &frame, const Zoom &zoom)
{
    const QSize size(GST_VIDEO_INFO_WIDTH(&frame.info), GST_VIDEO_INFO_HEIGHT(&frame.info));
    const GstVideoInfo rgb = pictureInfo(GST_VIDEO_FORMAT_RGB, size);
    QImage image = largeImage(rgb);
    if (image.isNull())
        return {};
    const BufferHandle picture(gst_buffer_new_wrapped_full(GstMemoryFlags(0), image.bits(),
                                                           gsize(image.sizeInBytes()), 0,
                                                           gsize(image.sizeInBytes()), nullptr, nullptr));
    FrameConverter converter(GST_VIDEO_RESAMPLER_METHOD_CUBIC);
    if (!converter.convert(frame.info, frame.picture.get(), zoom.shownPart(size), rgb, picture.get()))
        return {};
    return image;
}

} // namespace

StillPicture::StillPicture(StillOrder order, bool isShown) : m_order(std::move(order)), m_isShown(isShown) {}

void StillPicture::save()
{
    const PhotoFault fault = make();
    bool isGivenUp = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        isGivenUp = m_result.has_value();
        if (!isGivenUp)
            m_result = fault;
    }
    // Nobody knows of a file that comes after that.
    if (isGivenUp && fault == PhotoFault::None)
        QFile::remove(m_order.path);
}

PhotoFault StillPicture::make()
{
    const FramePtr frame = wholeFrame(m_order);
    if (!frame)
        return PhotoFault::NoPicture;
    const QImage picture = rgbPicture(*frame, m_order.zoom);
    if (picture.isNull())
        return PhotoFault::Failed;
    if (m_isShown)
        offer(picture);
    return write(picture);
}

void StillPicture::offer(const QImage &picture)
{
    QImage copy = picture.convertToFormat(QImage::Format_RGB32);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_picture = std::move(copy);
}

PhotoFault StillPicture::write(const QImage &picture)
{
    const int error = writePhoto(m_order.path, picture);
    if (error != 0)
        qCWarning(cameraLog).noquote().nospace()
            << m_order.path << ": The photo cannot be written: " << qt_error_string(error) << '.';
    switch (error) {
    case 0:
        return PhotoFault::None;
    case ENOSPC:
    case EDQUOT:
        return PhotoFault::DiskFull;
    default:
        return PhotoFault::Failed;
    }
}

QImage StillPicture::takePicture()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return std::exchange(m_picture, QImage());
}

std::optional<PhotoFault> StillPicture::result() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_result;
}

PhotoFault StillPicture::giveUp()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_result)
        m_result = PhotoFault::DiskHangs;
    return *m_result;
}
