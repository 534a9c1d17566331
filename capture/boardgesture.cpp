#include "capture/boardgesture.h"

#include "capture/livecapture.h"
#include "capture/livevideowidget.h"
#include "capture/picturehands.h"
#include "capture/touchdriver.h"

#include <QGraphicsSceneMouseEvent>
#include <QMouseEvent>
#include <QPixmap>

#include <utility>

namespace
{

// A step of zoom needs a clear change of the contacts' distance, in pixels...
constexpr int leastChange = 99;
// ...but one beyond all proportion is a contact lost or found.
constexpr double leastRatio = 0.2;
constexpr double mostRatio = 10;

} // namespace

std::optional<int> contactDistance()
{
    CDriverExtraInfo info{};
    CDriverProxy::get()->getExtraInfo(info);
    if (info.gestureState != twoContactsOnBoard)
        return {};
    return int(info.shadowSize * CDriverProxy::get()->getShadowRatio());
}

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
        if (const std::optional<int> distance = contactDistance())
            followGesture(*distance);
    }
    QWidget::mouseMoveEvent(event);
}

void LiveVideoWidget::followGesture(int distance)
{
    if (m_lastShadowDistance == 0) {
        m_lastShadowDistance = distance;
        showZoomCursor();
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
    if (m_capture->data.isVeltrixCam)
        endGesture();
    QWidget::mouseReleaseEvent(event);
}

// Another press in the middle of a gesture begins it anew, but with the cursor of before it at its end.
void LiveVideoWidget::showZoomCursor()
{
    if (m_hasZoomCursor)
        return;
    m_hasZoomCursor = true;
    m_savedCursor = cursor();
    setCursor(QCursor(QPixmap(QStringLiteral(":res/zoom_cursor.png"))));
}

void LiveVideoWidget::endGesture()
{
    m_lastShadowDistance = 0;
    m_isZoomDrag = false;
    if (std::exchange(m_hasZoomCursor, false))
        setCursor(m_savedCursor);
}

// Whatever is being pressed or dragged on the picture ends.
void LiveVideoWidget::letGo()
{
    m_touchDriver->cancel();
    m_hands->letGo();
    endGesture();
}
