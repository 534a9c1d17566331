#include "platform/moviepictures.h"

#include "platform/planecolours.h"
#include "platform/planescaler.h"

#include <QRegion>

#include <cstring>

namespace
{

const QSize largest(1920, 1080);
constexpr int planeCount = 3;
constexpr int mostCutOff = 4;
constexpr uint8_t black[planeCount] = {16, 128, 128};

int even(int pixels)
{
    return qMax(2, pixels & ~1);
}

// Where a shown picture of that size stands in the movie's, on even pixels.
QRect placeIn(const QSize &movie, const QSize &shown)
{
    const QSize fitted = shown.scaled(movie, Qt::KeepAspectRatio);
    // The movie's own size is that of such a picture but for what was cut off to make it even.
    const auto side = [](int whole, int part) { return whole - part < mostCutOff ? whole : even(part); };
    const QSize size(side(movie.width(), fitted.width()), side(movie.height(), fitted.height()));
    return {QPoint((movie.width() - size.width()) / 2 & ~1, (movie.height() - size.height()) / 2 & ~1), size};
}

// The same place on one of the planes, of which those of colour have half the size.
QRect onPlane(const QRect &place, int plane)
{
    return plane == 0 ? place : QRect(place.topLeft() / 2, halved(place.size()));
}

uint8_t *pixelOf(GstVideoFrame *picture, int plane, const QPoint &at)
{
    return GST_VIDEO_FRAME_COMP_DATA(picture, plane) +
           ptrdiff_t(at.y()) * GST_VIDEO_FRAME_COMP_STRIDE(picture, plane) + at.x();
}

void blackenAround(const QRect &place, GstVideoFrame *picture)
{
    const QRect whole(0, 0, GST_VIDEO_FRAME_WIDTH(picture), GST_VIDEO_FRAME_HEIGHT(picture));
    for (const QRect &bar : QRegion(whole) - place) {
        for (int plane = 0; plane < planeCount; ++plane) {
            const QRect part = onPlane(bar, plane);
            for (int y = part.top(); y <= part.bottom(); ++y)
                memset(pixelOf(picture, plane, {part.left(), y}), black[plane], size_t(part.width()));
        }
    }
}

// What most raw cameras send, shown as it comes and not larger than a movie may be.
bool unpack(const CapturedFrame &frame, GstVideoFrame *picture)
{
    if (frame.isJpeg() || frame.isDamaged)
        return false;
    MappedFrame mapped(frame.info, frame.picture.get(), GST_MAP_READ);
    if (!mapped.isValid() || !unpackInto(picture, mapped.get()))
        return false;
    changeColours(frame.info.colorimetry, picture);
    return true;
}

std::optional<PicturePlanes> read(const FramePtr &frame, FramePlanes *planes, const Framing &framing,
                                  const QSize &size)
{
    return planes->read(frame, framing.shownPart(frame->size()), framing.turn.turned(size));
}

QRect placeOf(const CapturedFrame &frame, const Framing &framing, const GstVideoInfo &info)
{
    return placeIn({GST_VIDEO_INFO_WIDTH(&info), GST_VIDEO_INFO_HEIGHT(&info)},
                   framing.shownSize(frame.size()));
}

} // namespace

GstVideoInfo MoviePictures::infoOf(const QSize &shown)
{
    const QSize limit = shown.width() < shown.height() ? largest.transposed() : largest;
    const bool isTooLarge = shown.width() > limit.width() || shown.height() > limit.height();
    const QSize size = isTooLarge ? shown.scaled(limit, Qt::KeepAspectRatio) : shown;
    // The encoder takes even sizes only.
    GstVideoInfo info = pictureInfo(GST_VIDEO_FORMAT_I420, {even(size.width()), even(size.height())});
    gst_video_colorimetry_from_string(&info.colorimetry, GST_VIDEO_COLORIMETRY_BT709);
    return info;
}

void MoviePictures::prepare(const FramePtr &frame, FramePlanes *planes, const Framing &framing,
                            const GstVideoInfo &info, const QSize &box)
{
    if (!frame->isJpeg())
        return;
    const QSize inWindow = framing.shownSize(frame->size()).scaled(box, Qt::KeepAspectRatio);
    read(frame, planes, framing, placeOf(*frame, framing, info).size().expandedTo(inWindow));
}

FramePtr MoviePictures::make(const FramePtr &frame, FramePlanes *planes, const Framing &framing,
                             const GstVideoInfo &info)
{
    auto made = std::make_shared<CapturedFrame>();
    made->info = info;
    made->clockTime = frame->clockTime;
    made->picture = memoryOf(guint(info.size));
    if (!made->picture)
        return {};
    MappedFrame picture(info, made->picture.get(), GST_MAP_READWRITE);
    const QRect place = placeOf(*frame, framing, info);
    if (!picture.isValid() || !draw(frame, planes, framing, place, picture.get()))
        return {};
    blackenAround(place, picture.get());
    return made;
}

// That of a picture which the encoder is through with, as fresh memory would have to be cleared by the
// system.
BufferHandle MoviePictures::memoryOf(guint bytes)
{
    if (!m_pool || bytes != m_pictureBytes) {
        m_pool.reset(gst_buffer_pool_new());
        m_pictureBytes = bytes;
        GstStructure *config = gst_buffer_pool_get_config(m_pool.get());
        gst_buffer_pool_config_set_params(config, nullptr, bytes, 0, 0);
        gst_buffer_pool_set_config(m_pool.get(), config);
        gst_buffer_pool_set_active(m_pool.get(), TRUE);
    }
    GstBuffer *buffer = nullptr;
    gst_buffer_pool_acquire_buffer(m_pool.get(), &buffer, nullptr);
    return BufferHandle(buffer);
}

bool MoviePictures::draw(const FramePtr &frame, FramePlanes *planes, const Framing &framing,
                         const QRect &place, GstVideoFrame *picture)
{
    if (framing.isNone() && unpack(*frame, picture))
        return true;
    if (const auto found = read(frame, planes, framing, place.size())) {
        put(*found, framing.turn, place, picture);
        changeColours(found->colours, picture);
        return true;
    }
    return !frame->isJpeg() && !frame->isDamaged && drawGenerally(*frame, framing, place, picture);
}

// In two steps, as the converter cannot turn.
bool MoviePictures::drawGenerally(const CapturedFrame &frame, const Framing &framing, const QRect &place,
                                  GstVideoFrame *picture)
{
    GstVideoInfo info = pictureInfo(GST_VIDEO_FORMAT_I420, framing.turn.turned(place.size()));
    info.colorimetry = picture->info.colorimetry;
    const BufferHandle upright(gst_buffer_new_allocate(nullptr, info.size, nullptr));
    if (!m_general.convert(frame.info, frame.picture.get(), framing.shownPart(frame.size()), info,
                           upright.get()))
        return false;
    MappedFrame mapped(info, upright.get(), GST_MAP_READ);
    if (!mapped.isValid())
        return false;
    const QRect whole(QPoint(0, 0), framing.turn.turned(place.size()));
    if (const auto planes = planesOf(mapped.get(), whole, &m_upright))
        put(*planes, framing.turn, place, picture);
    return true;
}

// Scaled straight into the picture, or first scaled and then turned into it.
void MoviePictures::put(const PicturePlanes &planes, const Turn &turn, const QRect &place,
                        GstVideoFrame *picture)
{
    const QSize upright = turn.turned(place.size());
    const PicturePlanes from = turn.isNone() ? planes : scaled(planes, upright, halved(upright), &m_upright);
    for (int i = 0; i < planeCount; ++i) {
        const QRect target = onPlane(place, i);
        uint8_t *pixels = pixelOf(picture, i, target.topLeft());
        const int stride = GST_VIDEO_FRAME_COMP_STRIDE(picture, i);
        if (turn.isNone())
            scalePlane(from.data[i], from.stride[i], from.sizeOf(i), pixels, stride, target.size());
        else
            turnPlane(from.data[i], from.stride[i], from.sizeOf(i), turn, pixels, stride);
    }
}
