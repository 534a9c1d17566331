#include "capture/touchdriver.h"

#include "capture/driverproxy.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QTouchEvent>
#include <QWidget>

#include <utility>

TouchDriver::TouchDriver(QWidget *widget) : QObject(widget), m_widget(widget)
{
    widget->setAttribute(Qt::WA_AcceptTouchEvents);
    widget->installEventFilter(this);
}

bool TouchDriver::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::TouchBegin:
        // The end of the touch before may not have been told.
        cancel();
        m_state = State::Idle;
        Q_FALLTHROUGH();
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
        event->accept();
        follow(*static_cast<QTouchEvent *>(event));
        return true;
    case QEvent::TouchCancel:
        cancel();
        return true;
    default:
        return QObject::eventFilter(watched, event);
    }
}

void TouchDriver::cancel()
{
    CDriverProxy::get()->allFingersUp();
    takeBack();
    m_state = State::Over;
}

void TouchDriver::follow(const QTouchEvent &event)
{
    tellFingers(event);
    QPointF sum;
    int count = 0;
    for (const QTouchEvent::TouchPoint &point : event.touchPoints()) {
        if (point.state() == Qt::TouchPointReleased)
            continue;
        sum += point.pos();
        ++count;
    }
    if (count == 0)
        changeTo(State::Idle, m_place);
    else if (m_state == State::Over || count > 2 || (m_state == State::TwoFingers && count == 1))
        changeTo(State::Over, m_place);
    else
        changeTo(count == 1 ? State::OneFinger : State::TwoFingers, (sum / count).toPoint());
}

void TouchDriver::tellFingers(const QTouchEvent &event)
{
    CDriverProxy *proxy = CDriverProxy::get();
    for (const QTouchEvent::TouchPoint &point : event.touchPoints()) {
        const QPoint position = point.screenPos().toPoint();
        switch (point.state()) {
        case Qt::TouchPointPressed:
            proxy->fingerDown(position, point.id());
            break;
        case Qt::TouchPointMoved:
            proxy->fingerMove(position, point.id());
            break;
        case Qt::TouchPointReleased:
            proxy->fingerUp(position, point.id());
            break;
        default:
            break;
        }
    }
}

// A lifted finger ends its drag where it is; else what the first one pressed is taken back.
void TouchDriver::changeTo(State state, const QPoint &place)
{
    if (state == m_state) {
        if (m_button != Qt::NoButton)
            moveTo(place);
        return;
    }
    m_state = state;
    if (state == State::Idle)
        release();
    else
        takeBack();
    if (state == State::OneFinger)
        press(Qt::LeftButton, place);
    else if (state == State::TwoFingers)
        press(Qt::RightButton, place);
}

void TouchDriver::press(Qt::MouseButton button, const QPoint &place)
{
    m_button = button;
    m_place = m_pressedAt = place;
    send(QEvent::MouseButtonPress, button);
}

void TouchDriver::moveTo(const QPoint &place)
{
    m_place = place;
    send(QEvent::MouseMove, Qt::NoButton);
}

void TouchDriver::release()
{
    if (m_button != Qt::NoButton)
        send(QEvent::MouseButtonRelease, std::exchange(m_button, Qt::NoButton));
}

void TouchDriver::takeBack()
{
    if (m_button == Qt::LeftButton)
        moveTo(m_pressedAt);
    release();
}

// At the pointer's place; with the button that is pressed or released.
void TouchDriver::send(QEvent::Type type, Qt::MouseButton button)
{
    QMouseEvent event(type, m_place, m_widget->mapTo(m_widget->window(), m_place),
                      m_widget->mapToGlobal(m_place), button, m_button, Qt::NoModifier,
                      Qt::MouseEventSynthesizedByApplication);
    QCoreApplication::sendEvent(m_widget, &event);
}
