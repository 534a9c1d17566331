#include "platform/stillpicture.h"

#include "platform/capturelog.h"
#include "platform/frameconverter.h"
#include "platform/frameplanes.h"
#include "platform/jpegdecoder.h"
#include "platform/largepixels.h"
#include "platform/planecolours.h"
#include "util/files/photofile.h"

#include <QFile>
#include <QTransform>

#include <cerrno>
#include <utility>

namespace
{

BufferHandle wrapImage(QImage *image)
{
    return wrapPixels(image->bits(), size_t(image->sizeInBytes()));
}

// A frame as RGB, and whether all of it came from the camera.
struct RgbPicture {
    QImage image; // null when there is nothing to see in it
    bool isWhole = false;
};

// The part of a raw picture, at its own size or, with GStreamer's best scaling, at another.
bool convert(const GstVideoInfo &info, GstBuffer *buffer, const QRect &part, QImage *image)
{
    const GstVideoInfo rgb = pictureInfo(GST_VIDEO_FORMAT_RGB, image->size());
    return FrameConverter(GST_VIDEO_RESAMPLER_METHOD_CUBIC)
        .convert(info, buffer, part, rgb, wrapImage(image).get());
}

RgbPicture rgbPicture(const FramePtr &frame)
{
    RgbPicture picture;
    if (frame->isJpeg()) {
        picture.image = JpegDecoder::decodeRgb(frame->picture.get(), frame->size(), &picture.isWhole);
        return picture;
    }
    const QRect whole(QPoint(0, 0), frame->size());
    picture = {largeImage(whole.size()), !frame->isDamaged};
    if (picture.image.isNull())
        return {};
    FramePlanes planes;
    const auto found = planes.read(frame, whole, whole.size());
    if (!(found && toRgb(*found, picture.image.bits(), picture.image.bytesPerLine())) &&
        !convert(frame->info, frame->picture.get(), whole, &picture.image))
        return {};
    return picture;
}

// The part that the zoom shows, at the whole picture's size.
RgbPicture zoomed(RgbPicture picture, const Zoom &zoom)
{
    const QSize size = picture.image.size();
    if (zoom.isNone() || picture.image.isNull())
        return picture;
    RgbPicture larger{largeImage(size), picture.isWhole};
    const GstVideoInfo rgb = pictureInfo(GST_VIDEO_FORMAT_RGB, size);
    if (larger.image.isNull() ||
        !convert(rgb, wrapImage(&picture.image).get(), zoom.shownPart(size), &larger.image))
        return {};
    return larger;
}

QImage turned(const QImage &image, const Turn &turn)
{
    return turn.isNone() ? image : image.transformed(QTransform().rotate(turn.degrees()));
}

// Of the first whole frame from the one of the order on; null when none has come in that time.
QImage wholePicture(StillOrder *order)
{
    RgbPicture picture;
    // The camera's driver waits for a frame that is held on to.
    order->frames->tryFrom(std::exchange(order->frame, {}), [&](const FramePtr &frame) {
        picture = zoomed(rgbPicture(frame), order->framing.zoom);
        return picture.isWhole;
    });
    return picture.isWhole ? turned(picture.image, order->framing.turn) : QImage();
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
    const QImage picture = wholePicture(&m_order);
    if (picture.isNull())
        return PhotoFault::NoPicture;
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
