#include "dialog/pictoreldlg.h"

#include "capture/livevideowidget.h"
#include "capture/timerwidget.h"
#include "dialog/saveconfirmdlg.h"
#include "util/files/alivewait.h"
#include "util/webcamutil.h"
#include "widgets/moviewidget.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QLoggingCategory>
#include <QTimer>

#include <chrono>

namespace
{

using namespace std::chrono_literals;

// On a slow disk the end of a movie takes its time. At a log-out nobody grants that much.
constexpr auto movieLimit = 1min;
constexpr auto movieLimitAtLogOut = 5s;

// How soon leaving is looked at again while a photo or a movie is still being waited for.
constexpr auto retryPeriod = 50ms;

Q_LOGGING_CATEGORY(lcClosing, "orvane.closing")

} // namespace

void CPictorelDlg::OnClose()
{
    stop_window();
    if (WebcamUtil::isSaveFile()) {
        SaveConfirmDlg question(this);
        const int answer = question.exec();
        if (m_isLeaving || answer == QDialog::Rejected)
            return;
        m_isLeaving = true;
        if (answer != QDialog::Accepted)
            WebcamUtil::deleteData();
        else if (!saveCaptures(movieLimit))
            WebcamUtil::WarningMessage(tr("Save failed."), this);
    }
    m_isLeaving = true;
    close();
}

// A movie that is still being finished waits for its end, which a copy of it now would lack.
bool CPictorelDlg::saveCaptures(std::chrono::milliseconds limit)
{
    QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    if (m_liveView && facts().isMovieRunning())
        m_liveView->RecordStop();
    const bool isFinished =
        waitAlive([this] { return !m_liveView || !m_liveView->isFinishingMovie(); }, limit) && m_liveView;
    const bool isSaved = isFinished && WebcamUtil::saveData(m_saveDirectory);
    QGuiApplication::restoreOverrideCursor();
    return isSaved;
}

// A capture that is just being taken comes along.
void CPictorelDlg::saveAndLeave()
{
    if (m_liveView && m_liveView->isBusy()) {
        QTimer::singleShot(retryPeriod, this, &CPictorelDlg::saveAndLeave);
        return;
    }
    saveQuietly();
    m_isLeaving = true;
    close();
    QCoreApplication::quit(); // a message may be open, which close() does not close
}

void CPictorelDlg::saveQuietly()
{
    if (m_isLeaving || !WebcamUtil::isSaveFile())
        return;
    m_isLeaving = true;
    stop_window();
    m_timerView->Stop();
    if (!saveCaptures(movieLimitAtLogOut))
        qCWarning(lcClosing, "Not everything that was taken could be saved; the rest is in %s.",
                  qUtf8Printable(WebcamUtil::getTemporaryPath()));
    m_isLeaving = false;
}

void CPictorelDlg::closeEvent(QCloseEvent *event)
{
    if (event->spontaneous() && !m_isLeaving) {
        event->ignore();
        if (!m_liveView || !m_liveView->isBusy())
            OnClose();
        return;
    }
    m_timerView->Stop(); // no shot is taken any more
    hide();              // a slow disk may still take a movie
    closeViews();
    QWidget::closeEvent(event);
}

void CPictorelDlg::closeViews()
{
    if (m_liveView) {
        if (m_liveView->isCreate())
            m_liveView->Release();
        // Closed from outside while a message is open or something is waited for, a command still stands in
        // the middle of its work: the live view then goes with the window.
        if (!QApplication::activeModalWidget() && !m_liveView->isBusy()) {
            // What was pressed while the program saved comes only now, and must find nothing left to command.
            setEnabled(false);
            delete m_liveView;
            m_liveView = nullptr;
        }
    }
    // Asking a player that never had a movie would load all of its machinery.
    if (m_movieView->isCreated() && m_movieView->isPlayWanted())
        m_movieView->Release();
}
