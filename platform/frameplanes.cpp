#include "platform/frameplanes.h"

#include "platform/jpegdecoder.h"

namespace
{

// By how much a decoded part may be smaller than what is made of it. A twelfth is not seen; decoding at twice
// the size would be felt.
constexpr double mostEnlarged = 1.08;

// The scale that leaves the part with the pixels for that size.
int denominatorFor(const QSize &part, const QSize &size)
{
    int denominator = 8;
    while (denominator > 1 && (part.width() * mostEnlarged < size.width() * denominator ||
                               part.height() * mostEnlarged < size.height() * denominator))
        denominator /= 2;
    return denominator;
}

// The same part of a picture of another size, on even pixels.
QRect inSize(const QRect &part, const QSize &from, const QSize &to)
{
    if (part.size() == from)
        return {QPoint(0, 0), to};
    const auto even = [](int value, int fromSide, int toSide) {
        return int(qint64(value) * toSide / fromSide) & ~1;
    };
    return {even(part.x(), from.width(), to.width()), even(part.y(), from.height(), to.height()),
            qMax(2, even(part.width(), from.width(), to.width())),
            qMax(2, even(part.height(), from.height(), to.height()))};
}

} // namespace

std::optional<PicturePlanes> FramePlanes::read(const FramePtr &frame, const QRect &part, const QSize &size)
{
    if (frame->isDamaged)
        return {};
    if (!frame->isJpeg())
        return readRaw(frame, part);
    if (!decode(frame, denominatorFor(part.size(), size)))
        return {};
    return cropped(*m_decoded, inSize(part, frame->size(), m_decoded->size));
}

std::optional<PicturePlanes> FramePlanes::readRaw(const FramePtr &frame, const QRect &part)
{
    release();
    m_frame = frame;
    m_mapped = std::make_unique<MappedFrame>(frame->info, frame->picture.get(), GST_MAP_READ);
    return m_mapped->isValid() ? planesOf(m_mapped->get(), part, &m_memory) : std::nullopt;
}

bool FramePlanes::decode(const FramePtr &frame, int denominator)
{
    const bool isThere = frame == m_frame && m_denominator && (m_denominator <= denominator || !m_decoded);
    if (!isThere) {
        release();
        m_frame = frame;
        m_denominator = denominator;
        m_decoded = JpegDecoder::decode(frame->picture.get(), frame->size(), denominator, &m_memory);
    }
    return m_decoded.has_value();
}

bool FramePlanes::hasFoundDamage(const CapturedFrame &jpeg) const
{
    return m_frame.get() == &jpeg && m_denominator && !m_decoded;
}

void FramePlanes::release()
{
    m_mapped.reset();
    m_decoded.reset();
    m_denominator = 0;
    m_frame.reset();
}
