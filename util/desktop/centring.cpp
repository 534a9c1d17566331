#include "util/desktop/centring.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

void centreOnDesktop(QWidget *widget)
{
    if (!widget)
        return;
    widget->setFixedSize(widget->sizeHint());
    moveToMiddle(widget);
}

void moveToMiddle(QWidget *widget)
{
    const QSize desktop = QGuiApplication::primaryScreen()->virtualSize();
    widget->move((desktop.width() - widget->width()) / 2, (desktop.height() - widget->height()) / 2);
}

void fitOnScreen(QWidget *window)
{
    constexpr QSize frame(12, 36); // about what window managers take
    const QSize room = QGuiApplication::primaryScreen()->availableSize() - frame;
    window->resize(window->sizeHint().boundedTo(room));
}
