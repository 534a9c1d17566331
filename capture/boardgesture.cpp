#include "capture/boardgesture.h"

#include "capture/livecapture.h"
#include "capture/livevideowidget.h"

#include <QGraphicsSceneMouseEvent>
#include <QMouseEvent>
#include <QPixmap>

namespace
{

constexpr int twoContacts = 128;

// A step of zoom needs a clear change of the contacts' distance, in pixels...
constexpr int leastChange = 99;
// ...but one beyond all proportion is a contact lost or found.
constexpr double leastRatio = 0.2;
constexpr double mostRatio = 10;

} // namespace

ZoomStep zoomStep(int lastDistance, int distance, bool *isDecision)
{
    *isDecision = qAbs(distance - lastDistance) > leastChange;
    if (!*isDecision || distance <= leastRatio * lastDistance || distance >= mostRatio * lastDistance)
        return ZoomStep::None;
    return distance < lastDistance ? ZoomStep::Out : ZoomStep::In;
}

bool LiveVideoWidget::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseMove:
        mouseMoveEvent(static_cast<QMouseEvent *>(event));
        return true;
    case QEvent::GraphicsSceneMouseMove:
        moveAsInScene(*static_cast<QGraphicsSceneMouseEvent *>(event));
        return true;
    case QEvent::MouseButtonPress:
        mousePressEvent(static_cast<QMouseEvent *>(event));
        return true;
    case QEvent::MouseButtonRelease:
        mouseReleaseEvent(static_cast<QMouseEvent *>(event));
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

void LiveVideoWidget::moveAsInScene(const QGraphicsSceneMouseEvent &move)
{
    QMouseEvent event(QEvent::MouseMove, move.pos(), move.screenPos(), move.button(), move.buttons(),
                      move.modifiers());
    mouseMoveEvent(&event);
}

void LiveVideoWidget::mousePressEvent(QMouseEvent *event)
{
    if (m_capture->data.isVeltrixCam) {
        m_lastShadowDistance = 0;
        if (event->button() == Qt::RightButton)
            m_isZoomDrag = true;
    }
    QWidget::mousePressEvent(event);
}

void LiveVideoWidget::mouseMoveEvent(QMouseEvent *event)
{
    if (m_capture->data.isVeltrixCam && m_isZoomDrag) {
        CDriverExtraInfo info{};
        CDriverProxy::get()->getExtraInfo(info);
        if (info.gestureState == twoContacts)
            followGesture(int(info.shadowSize * CDriverProxy::get()->getShadowRatio()));
    }
    QWidget::mouseMoveEvent(event);
}

void LiveVideoWidget::followGesture(int distance)
{
    if (m_lastShadowDistance == 0) {
        m_lastShadowDistance = distance;
        m_savedCursor = cursor();
        setCursor(QCursor(QPixmap(QStringLiteral(":res/zoom_cursor.png"))));
        return;
    }
    bool isDecision = false;
    const ZoomStep step = zoomStep(m_lastShadowDistance, distance, &isDecision);
    if (step == ZoomStep::Out)
        Zoomout();
    else if (step == ZoomStep::In)
        Zoomin();
    if (isDecision)
        m_lastShadowDistance = distance;
}

void LiveVideoWidget::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_capture->data.isVeltrixCam) {
        m_lastShadowDistance = 0;
        setCursor(m_savedCursor);
        m_isZoomDrag = false;
    }
    QWidget::mouseReleaseEvent(event);
}
