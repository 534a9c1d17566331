#include "platform/framerenderer.h"

#include "platform/largepixels.h"

#include <algorithm>

namespace
{

// The latest picture, the one before that the window may still paint from, and the one that is being made.
constexpr size_t mostBuffers = 3;

// Read as the matrix itself changes it, since the window lets go of a picture in another thread.
bool isHeldElsewhere(const cv::Mat &buffer)
{
    return buffer.u && CV_XADD(&buffer.u->refcount, 0) > 1;
}

} // namespace

cv::Mat FrameRenderer::render(const FramePtr &frame, FramePlanes *planes, const Framing &framing,
                              const QSize &box)
{
    const QSize size = framing.shownSize(frame->size()).scaled(box, Qt::KeepAspectRatio);
    if (size.isEmpty())
        return {};
    const QRect part = framing.shownPart(frame->size());
    cv::Mat pixels = freeBuffer(size);
    if (framing.turn.isNone())
        return m_pixels.convert(frame, part, planes, &pixels) ? pixels : cv::Mat();
    const QSize before = framing.turn.turned(size);
    createLarge(&m_upright, before.height(), before.width(), CV_8UC4);
    if (!m_pixels.convert(frame, part, planes, &m_upright))
        return {};
    turnPixels(m_upright, framing.turn, &pixels);
    return pixels;
}

cv::Mat FrameRenderer::freeBuffer(const QSize &size)
{
    m_buffers.erase(std::remove_if(m_buffers.begin(), m_buffers.end(),
                                   [&](const cv::Mat &buffer) {
                                       return buffer.cols != size.width() || buffer.rows != size.height();
                                   }),
                    m_buffers.end());
    const auto unused = std::find_if(m_buffers.begin(), m_buffers.end(),
                                     [](const cv::Mat &buffer) { return !isHeldElsewhere(buffer); });
    if (unused != m_buffers.end())
        return *unused;
    cv::Mat fresh;
    createLarge(&fresh, size.height(), size.width(), CV_8UC4);
    if (m_buffers.size() < mostBuffers)
        m_buffers.push_back(fresh);
    return fresh;
}
