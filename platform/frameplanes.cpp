#include "platform/frameplanes.h"

#include "platform/jpegdecoder.h"

#include <mutex>
#include <utility>

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

// The memory of planes that nobody reads any more, for the next picture: fresh memory would have to be
// cleared by the system.
class SparePlanes
{
public:
    static std::shared_ptr<PlaneMemory> take(const std::shared_ptr<SparePlanes> &spare)
    {
        std::unique_ptr<PlaneMemory> memory = spare->exchange({});
        if (!memory)
            memory = std::make_unique<PlaneMemory>();
        return {memory.release(),
                [spare](PlaneMemory *used) { spare->exchange(std::unique_ptr<PlaneMemory>(used)); }};
    }

private:
    std::unique_ptr<PlaneMemory> exchange(std::unique_ptr<PlaneMemory> memory)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return std::exchange(m_memory, std::move(memory));
    }

    std::mutex m_mutex;
    std::unique_ptr<PlaneMemory> m_memory;
};

FramePlanes::FramePlanes() : m_spare(std::make_shared<SparePlanes>()) {}

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
    m_mapped = std::make_shared<MappedFrame>(frame->info, frame->picture.get(), GST_MAP_READ);
    m_memory = SparePlanes::take(m_spare);
    return m_mapped->isValid() ? planesOf(m_mapped->get(), part, m_memory.get()) : std::nullopt;
}

bool FramePlanes::decode(const FramePtr &frame, int denominator)
{
    const bool isThere = frame == m_frame && m_denominator && (m_denominator <= denominator || !m_decoded);
    if (!isThere) {
        release();
        m_frame = frame;
        m_denominator = denominator;
        m_memory = SparePlanes::take(m_spare);
        m_decoded = JpegDecoder::decode(frame->picture.get(), frame->size(), denominator, m_memory.get());
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
    m_memory.reset();
    m_frame.reset();
}
