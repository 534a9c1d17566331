#include "platform/videotarget.h"

#include <QEvent>
#include <QPainter>
#include <QWidget>

VideoTarget::VideoTarget(QObject *parent) : QObject(parent) {}

void VideoTarget::setWidget(QWidget *widget)
{
    if (m_widget) {
        m_widget->removeEventFilter(this);
        m_widget->update();
    }
    m_widget = widget;
    if (m_widget) {
        // Every pixel is painted here: a background under it would be painted for nothing, for each frame.
        m_widget->setAttribute(Qt::WA_OpaquePaintEvent);
        m_widget->installEventFilter(this);
        m_widget->update();
    }
    emit boxChanged();
}

void VideoTarget::setPicture(const QImage &picture)
{
    const QRect before = pixelArea();
    m_picture = picture;
    if (m_widget)
        m_widget->update(onWidget(before | pixelArea()));
}

QSize VideoTarget::box() const
{
    if (!m_widget || !m_widget->isVisible())
        return {};
    return m_widget->size() * m_widget->devicePixelRatioF();
}

bool VideoTarget::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_widget)
        return QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::Paint:
        paint();
        return true;
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
        emit boxChanged();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

QRect VideoTarget::widgetArea() const
{
    return {QPoint(0, 0), m_widget->size() * m_widget->devicePixelRatioF()};
}

QRect VideoTarget::pixelArea() const
{
    if (!m_widget || m_picture.isNull())
        return {};
    const QSize room = widgetArea().size();
    const QSize size = m_picture.size().scaled(room, Qt::KeepAspectRatio);
    return {QPoint((room.width() - size.width()) / 2, (room.height() - size.height()) / 2), size};
}

QRect VideoTarget::pictureArea() const
{
    const QRect pixels = pixelArea();
    return pixels.isEmpty() ? QRect() : onWidget(pixels);
}

QRect VideoTarget::onWidget(const QRect &pixels) const
{
    const qreal ratio = m_widget->devicePixelRatioF();
    return QRectF(QPointF(pixels.topLeft()) / ratio, QSizeF(pixels.size()) / ratio).toAlignedRect();
}

void VideoTarget::paint()
{
    QPainter painter(m_widget);
    const qreal ratio = m_widget->devicePixelRatioF();
    painter.scale(1 / ratio, 1 / ratio); // in device pixels, as the picture was made
    const QRect area = pixelArea();
    const QRegion border = QRegion(widgetArea().adjusted(0, 0, 1, 1)) - area; // parts of pixels count
    for (const QRect &strip : border)
        painter.fillRect(strip, Qt::black);
    if (area.isEmpty())
        return;
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    // Made for this size, but for the moment after a resize.
    if (m_picture.size() == area.size())
        painter.drawImage(area.topLeft(), m_picture);
    else
        painter.drawImage(area, m_picture);
}
