#include "dialog/pictoreldlg.h"

#include "capture/livevideowidget.h"
#include "capture/timerwidget.h"
#include "dialog/saveconfirmdlg.h"
#include "util/webcamutil.h"
#include "widgets/moviewidget.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <chrono>

void CPictorelDlg::OnClose()
{
    stop_window();
    if (WebcamUtil::isSaveFile()) {
        SaveConfirmDlg question(this);
        switch (question.exec()) {
        case QDialog::Rejected:
            return;
        case QDialog::Accepted:
            saveCaptures();
            break;
        default:
            WebcamUtil::deleteData();
        }
    }
    close();
}

void CPictorelDlg::saveCaptures()
{
    QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    const bool isSaved = waitForMovie() && WebcamUtil::saveData(m_saveDirectory);
    QGuiApplication::restoreOverrideCursor();
    if (!isSaved)
        WebcamUtil::WarningMessage(tr("Save failed."), this);
}

// On a slow disk a movie is still being finished, and a copy of it now would lack its end. False when it is
// not finished in time, or the program has to end before.
bool CPictorelDlg::waitForMovie()
{
    constexpr auto limit = std::chrono::minutes(1);
    constexpr auto period = std::chrono::milliseconds(50);
    const auto isFinishing = [this] { return m_liveView && m_liveView->isFinishingMovie(); };
    QEventLoop loop;
    const QDeadlineTimer deadline(limit);
    QTimer look;
    connect(&look, &QTimer::timeout, &loop, [&] {
        if (deadline.hasExpired() || !isFinishing())
            loop.quit();
    });
    look.start(period);
    if (isFinishing())
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    return m_liveView && !isFinishing();
}

void CPictorelDlg::closeEvent(QCloseEvent *event)
{
    m_timerView->Stop(); // no shot is taken any more
    hide();              // a slow disk may still take a movie
    if (m_liveView) {
        if (m_liveView->isCreate())
            m_liveView->Release();
        // Closed from outside while a message is open, a command still stands in the middle of its work and
        // the message may be the live view's child: it then goes with the window.
        if (!QApplication::activeModalWidget()) {
            // What was pressed while the program saved comes only now, and must find nothing left to command.
            setEnabled(false);
            delete m_liveView;
            m_liveView = nullptr;
        }
    }
    // Asking a player that never had a movie would load all of its machinery.
    if (m_movieView->isCreated() && m_movieView->isPlaying())
        m_movieView->Release();
    QWidget::closeEvent(event);
}
