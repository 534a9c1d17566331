#include "widgets/swipedlist.h"

#include <QMouseEvent>
#include <QScroller>

#include <utility>

SwipedList::SwipedList(QWidget *parent) : QListWidget(parent)
{
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    // Fingers on a touch screen that nobody else has taken come as the left button too.
    QScroller::grabGesture(viewport(), QScroller::LeftMouseButtonGesture);
    QScrollerProperties properties;
    for (const auto overshoot :
         {QScrollerProperties::HorizontalOvershootPolicy, QScrollerProperties::VerticalOvershootPolicy})
        properties.setScrollMetric(overshoot, QScrollerProperties::OvershootAlwaysOff);
    QScroller::scroller(viewport())->setScrollerProperties(properties);
}

// The press is not the base class's, which would choose with it, and with what it is drawn over.
void SwipedList::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->button() == Qt::LeftButton ? indexAt(event->pos()) : QModelIndex();
}

void SwipedList::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event); // two taps
}

void SwipedList::mouseMoveEvent(QMouseEvent *) {}

// A swipe is let go far outside, wherever the finger is.
void SwipedList::mouseReleaseEvent(QMouseEvent *event)
{
    const QPersistentModelIndex pressed = std::exchange(m_pressed, QPersistentModelIndex());
    if (pressed.isValid() && indexAt(event->pos()) == pressed)
        tap(pressed);
}

void SwipedList::tap(const QModelIndex &index)
{
    const auto command = selectionMode() == MultiSelection ? QItemSelectionModel::Toggle
                         : selectionMode() == NoSelection  ? QItemSelectionModel::NoUpdate
                                                           : QItemSelectionModel::ClearAndSelect;
    selectionModel()->setCurrentIndex(index, command);
}
