#pragma once

#include <QListWidget>
#include <QPersistentModelIndex>

// A list that follows a finger, or the mouse with its left button held, and runs on for a moment when it is
// let go. That chooses nothing: an item is chosen, or no longer chosen, by a tap, when the finger leaves it
// again.
class SwipedList : public QListWidget
{
    Q_OBJECT

public:
    explicit SwipedList(QWidget *parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    void tap(const QModelIndex &index);

    QPersistentModelIndex m_pressed;
};
