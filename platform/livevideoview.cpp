// What a LiveVideoData shows of the picture.

#include "platform/livevideodata.h"

void LiveVideoData::Start()
{
    m_isStarted = true;
    updateView();
}

void LiveVideoData::Stop()
{
    m_isStarted = false;
    updateView();
}

void LiveVideoData::Reset()
{
    updateView();
}

void LiveVideoData::ZoomIn()
{
    m_framing.zoom.in();
    updateView();
}

void LiveVideoData::ZoomOut()
{
    m_framing.zoom.out();
    updateView();
}

void LiveVideoData::zoomInAround(const QPoint &place)
{
    m_framing.zoom.in(fromMiddle(place));
    updateView();
}

void LiveVideoData::zoomOutAround(const QPoint &place)
{
    m_framing.zoom.out(fromMiddle(place));
    updateView();
}

void LiveVideoData::resetZoom()
{
    m_framing.zoom = Zoom();
    updateView();
}

void LiveVideoData::holdPicture()
{
    m_heldZoom = m_framing.zoom;
}

void LiveVideoData::dragPicture(const QPoint &way)
{
    m_framing.zoom = m_heldZoom;
    m_framing.zoom.move(-onShownPart(way));
    updateView();
}

void LiveVideoData::turnPicture()
{
    m_framing.turn.turnOn();
    updateView();
}

// A way on the target as the zoom counts it; none while no picture stands there.
QPointF LiveVideoData::onShownPart(const QPointF &way) const
{
    const QSize size = m_target.pictureArea().size();
    if (size.isEmpty())
        return {};
    return m_framing.turn.turnedBack({way.x() / size.width(), way.y() / size.height()});
}

// Places beside the picture count as its edge.
QPointF LiveVideoData::fromMiddle(const QPoint &place) const
{
    const QRectF area = m_target.pictureArea();
    const QPointF inside(qBound(area.left(), qreal(place.x()), area.right()),
                         qBound(area.top(), qreal(place.y()), area.bottom()));
    return onShownPart(inside - area.center());
}

void LiveVideoData::updateView()
{
    if (m_grabThread)
        m_grabThread->setView(m_isStarted ? m_target.box() : QSize(), m_framing);
}
