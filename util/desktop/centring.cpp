#include "util/desktop/centring.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

void centreOnDesktop(QWidget *widget)
{
    if (!widget)
        return;
    widget->setFixedSize(widget->sizeHint());
    const QSize desktop = QGuiApplication::primaryScreen()->virtualSize();
    widget->move((desktop.width() - widget->width()) / 2, (desktop.height() - widget->height()) / 2);
}
