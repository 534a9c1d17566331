#include "util/webcamutil.h"
#include "util/windowmanagement.h"

#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

static const Qt::WindowFlags boxFlags = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint;

static void showCentred(QMessageBox &box, QWidget *parent)
{
    // Qt knows fewer languages than the program does.
    box.button(QMessageBox::Ok)->setText(WebcamUtil::tr("OK"));
    WebcamUtil::moveToCenter(&box, parent);
    box.exec();
}

static void showMessage(QMessageBox::Icon icon, const QString &title, const QString &text, QWidget *parent)
{
    QMessageBox box(icon, title, text, QMessageBox::Ok, parent, boxFlags);
    showCentred(box, parent);
}

void WebcamUtil::moveToCenter(QWidget *widget, QWidget *parent)
{
    Q_UNUSED(parent)
    if (!widget)
        return;
    widget->setFixedSize(widget->sizeHint());
    const QSize desktop = QGuiApplication::primaryScreen()->virtualSize();
    widget->move((desktop.width() - widget->width()) / 2, (desktop.height() - widget->height()) / 2);
}

void WebcamUtil::infoMessage(const QString &text, QWidget *parent)
{
    showMessage(QMessageBox::Information, tr("Orvane"), text, parent);
}

void WebcamUtil::CriticalMessage(const QString &text, QWidget *parent)
{
    showMessage(QMessageBox::Critical, tr("Orvane"), text, parent);
}

void WebcamUtil::WarningMessage(const QString &text, QWidget *parent)
{
    CWindowManagementMessageBox box(QMessageBox::Warning, tr("Orvane"), text, QMessageBox::Ok, parent,
                                    boxFlags | Qt::WindowStaysOnTopHint, raisePeriodMs);
    showCentred(box, parent);
}

void WebcamUtil::ShowDiskWorningMessage(QWidget *parent)
{
    const QString text = tr("The disk free space is insufficient.\n") +
                         tr("Taking a picture is discontinued. Please secure the free space. ");
    showMessage(QMessageBox::Warning, tr("Orvane"), text, parent);
}
