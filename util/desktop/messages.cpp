#include "util/desktop/messages.h"

#include "util/desktop/centring.h"
#include "util/desktop/windowmanagement.h"

#include <QCoreApplication>
#include <QPushButton>

namespace
{

const Qt::WindowFlags boxFlags = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint;

// The catalogues have the texts under the name of the class that the rest of the program calls.
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(WebcamUtil)
public:
    static QString title() { return tr("Orvane"); }
    static QString ok() { return tr("OK"); }
};

void showCentred(QMessageBox &box)
{
    // Qt knows fewer languages than the program does.
    box.button(QMessageBox::Ok)->setText(Texts::ok());
    centreOnDesktop(&box);
    // Only when it is shown does it fold a long text, for the screen as it is.
    box.setModal(true);
    box.show();
    moveToMiddle(&box);
    box.exec();
}

} // namespace

void showMessage(QMessageBox::Icon icon, const QString &text, QWidget *parent)
{
    QMessageBox box(icon, Texts::title(), text, QMessageBox::Ok, parent, boxFlags);
    showCentred(box);
}

void showWarningOnTop(const QString &text, QWidget *parent)
{
    CWindowManagementMessageBox box(QMessageBox::Warning, Texts::title(), text, QMessageBox::Ok, parent,
                                    boxFlags | Qt::WindowStaysOnTopHint, raisePeriodMs);
    showCentred(box);
}
