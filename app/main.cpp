#include "app/displaywatch.h"
#include "app/qtsingleapplication.h"
#include "app/terminationsignals.h"
#include "app/translate.h"
#include "dialog/pictoreldlg.h"
#include "util/desktop/heap.h"
#include "util/desktop/look.h"
#include "util/desktop/screenscale.h"

#include <QDir>
#include <QSessionManager>

int main(int argc, char **argv)
{
    useFewHeaps();

    // Keeping windows on top and embedding the live picture speak to the X server. In a Wayland session the
    // program runs through that session's X server; elsewhere this is what Qt takes anyway.
    qputenv("QT_QPA_PLATFORM", "xcb");
    // Nothing is drawn with OpenGL, and loading its drivers would take a fifth of the way to the first
    // picture.
    qputenv("QT_XCB_GL_INTEGRATION", "none");

    followScreenScale();

    QtSingleApplication application("Orvane", argc, argv);
    constexpr int wakeUpTimeoutMs = 5000;
    if (application.sendMessage("Wake up!", wakeUpTimeoutMs))
        return 0;
    application.isRunning();
    const DisplayWatch displayWatch;

    const QDir directory(QDir::currentPath());
    QCoreApplication::addLibraryPath(directory.absolutePath() + "/plugins/");
    translate();
    applyLook();

    CPictorelDlg dialog;
    if (!dialog.isStartable())
        return -1;

    // At a log-out nobody is there to be asked, and the working folder may be empty after the next start.
    TerminationSignals signalsFromOutside;
    bool isToEnd = false;
    QObject::connect(&signalsFromOutside, &TerminationSignals::requested, &dialog, [&dialog, &isToEnd] {
        isToEnd = true;
        dialog.saveAndLeave();
    });
    // A session manager says it otherwise, and may still think better of it.
    QGuiApplication::setFallbackSessionManagementEnabled(false);
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &dialog,
                     [&dialog](QSessionManager &session) {
                         session.setRestartHint(QSessionManager::RestartNever);
                         dialog.saveQuietly();
                     });

    dialog.setSharingCheck([&application] { return application.isRunning(); });
    dialog.SetPluginPath(QCoreApplication::applicationDirPath());
    dialog.show();
    dialog.raise();
    dialog.chkdevice();
    // A warning has an event loop of its own, which is all that a request during it has ended.
    if (isToEnd)
        return 0;
    return QApplication::exec();
}
