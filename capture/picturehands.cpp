#include "capture/picturehands.h"

#include "capture/boardgesture.h"
#include "platform/livevideodata.h"

#include <QKeySequence>
#include <QMouseEvent>
#include <QShortcut>
#include <QWidget>

PictureHands::PictureHands(LiveVideoData *camera, QWidget *surface)
    : QObject(surface), m_camera(camera), m_surface(surface)
{
    surface->installEventFilter(this);
    addKey(Qt::Key_Plus, &PictureHands::zoomIn);
    addKey(Qt::Key_Minus, &PictureHands::zoomOut);
    addKey(Qt::Key_0, &PictureHands::showWhole);
    // Held down, it would spin.
    addKey(Qt::Key_R, &PictureHands::turn)->setAutoRepeat(false);
}

QShortcut *PictureHands::addKey(const QKeySequence &key, void (PictureHands::*action)())
{
    auto *shortcut = new QShortcut(key, m_surface);
    connect(shortcut, &QShortcut::activated, this, action);
    return shortcut;
}

void PictureHands::zoomIn()
{
    letGo();
    m_camera->ZoomIn();
}

void PictureHands::zoomOut()
{
    letGo();
    m_camera->ZoomOut();
}

void PictureHands::showWhole()
{
    letGo();
    m_camera->resetZoom();
}

void PictureHands::turn()
{
    letGo();
    m_camera->turnPicture();
    emit turned();
}

// Mouse events go on to the view, which waits for the board's gesture.
bool PictureHands::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        press(*static_cast<QMouseEvent *>(event));
        break;
    case QEvent::MouseMove:
        move(*static_cast<QMouseEvent *>(event));
        break;
    case QEvent::MouseButtonRelease:
        letGo();
        break;
    case QEvent::Wheel:
        event->accept();
        roll(*static_cast<QWheelEvent *>(event));
        return true;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void PictureHands::press(const QMouseEvent &event)
{
    letGo();
    // Two fingers come as the right button; on the maker's camera they are the view's.
    m_isPinching = event.button() == Qt::RightButton && !m_camera->isVeltrixCam;
    m_pinchDistance = contactDistance().value_or(0);
    m_isDragging = event.button() == Qt::LeftButton && m_camera->isZoomed();
    if (!m_isDragging)
        return;
    m_heldAt = event.pos();
    m_camera->holdPicture();
    m_surface->setCursor(Qt::ClosedHandCursor);
}

void PictureHands::move(const QMouseEvent &event)
{
    if (m_isDragging)
        m_camera->dragPicture(event.pos() - m_heldAt);
    else if (m_isPinching)
        pinch(event.pos());
}

// The picture grows and shrinks with the distance of the fingers.
void PictureHands::pinch(const QPoint &place)
{
    const int distance = contactDistance().value_or(0);
    if (distance == 0 || m_pinchDistance == 0)
        return;
    for (; distance >= m_pinchDistance * Zoom::step; m_pinchDistance *= Zoom::step)
        m_camera->zoomInAround(place);
    for (; distance <= m_pinchDistance / Zoom::step; m_pinchDistance /= Zoom::step)
        m_camera->zoomOutAround(place);
}

void PictureHands::letGo()
{
    if (m_isDragging)
        m_surface->unsetCursor();
    m_isDragging = false;
    m_isPinching = false;
    m_pinchDistance = 0;
}

// A touch pad sends a step of the wheel in parts.
void PictureHands::roll(const QWheelEvent &event)
{
    letGo();
    const QPoint place = event.position().toPoint();
    m_rolled += event.angleDelta().y();
    for (; m_rolled >= QWheelEvent::DefaultDeltasPerStep; m_rolled -= QWheelEvent::DefaultDeltasPerStep)
        m_camera->zoomInAround(place);
    for (; m_rolled <= -QWheelEvent::DefaultDeltasPerStep; m_rolled += QWheelEvent::DefaultDeltasPerStep)
        m_camera->zoomOutAround(place);
}
