#pragma once

#include <QEvent>
#include <QObject>
#include <QPoint>

class QTouchEvent;
class QWidget;

// Makes an ordinary touch screen the board of one widget. CDriverProxy is told of the fingers, and the widget
// gets them as a board's driver gives them: one finger is the left mouse button; with a second one that is
// taken back to where it was pressed, and both together are a drag with the right button at the place between
// them. When one of two is lifted, or a third comes down, that is over until all are lifted.
class TouchDriver : public QObject
{
public:
    // Listens to the widget's touches from now on. The widget owns it.
    explicit TouchDriver(QWidget *widget);

    // Lets go of whatever is being pressed, as if nothing lay on the screen until it is touched anew.
    void cancel();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class State { Idle, OneFinger, TwoFingers, Over };

    void follow(const QTouchEvent &event);
    void tellFingers(const QTouchEvent &event);
    void changeTo(State state, const QPoint &place);
    void press(Qt::MouseButton button, const QPoint &place);
    void moveTo(const QPoint &place);
    void release();
    void takeBack();
    void send(QEvent::Type type, Qt::MouseButton button);

    QWidget *m_widget;
    State m_state = State::Idle;
    // The pointer, in the widget.
    Qt::MouseButton m_button = Qt::NoButton; // that is held
    QPoint m_pressedAt;
    QPoint m_place;
};
