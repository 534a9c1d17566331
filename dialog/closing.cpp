#include "dialog/pictoreldlg.h"

#include "capture/livevideowidget.h"
#include "capture/timerwidget.h"
#include "dialog/saveconfirmdlg.h"
#include "util/desktop/screenawake.h"
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

Q_LOGGING_CATEGORY(closingLog, "orvane.closing")

} // namespace

void CPictorelDlg::OnClose()
{
    stop_window();
    if (isWaitingAlive()) { // pressed, or closed by the window manager, in the middle of something
        m_closeTimer->start();
        return;
    }
    if (m_isAsking || m_isLeaving)
        return;
    m_isAsking = true;
    int answer = QDialog::Accepted;
    const bool hasCaptures = WebcamUtil::isSaveFile();
    if (hasCaptures)
        answer = SaveConfirmDlg(this).exec();
    m_isAsking = false;
    if (m_isLeaving || answer == QDialog::Rejected)
        return;
    m_isLeaving = true;
    if (answer != QDialog::Accepted)
        deleteAsAsked();
    else if (hasCaptures)
        saveAsAsked();
    close();
}

void CPictorelDlg::deleteAsAsked()
{
    if (m_isLessonShared())
        qCWarning(closingLog)
            << "Nothing is deleted: some of it may be another Orvane's, which does not answer.";
    else
        WebcamUtil::deleteData();
}

void CPictorelDlg::saveAsAsked()
{
    const bool wasRecording = facts().isMovieRunning();
    if (!saveCaptures(movieLimit))
        WebcamUtil::WarningMessage(tr("Save failed."), this);
    if (wasRecording && facts().sound == SoundState::LostInMovie)
        WebcamUtil::WarningMessage(LiveVideoWidget::invalidAudioText(), this);
}

// A movie that is still being finished waits for its end, which a copy of it now would lack. One that takes
// too long stays, and nothing else for its sake.
bool CPictorelDlg::saveCaptures(std::chrono::milliseconds limit)
{
    m_isSaving = true;
    QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    m_timerView->Stop(); // what a series took now would be left out
    if (facts().isMovieRunning())
        m_liveView->RecordStop();
    waitAlive([this] { return !m_liveView->isFinishingMovie(); }, limit, Input::KeptThroughout);
    const QStringList unfinished = m_liveView->unfinishedMovies();
    const bool isSaved =
        WebcamUtil::saveData(m_saveDirectory, unfinished) && unfinished.isEmpty() && !facts().movie.isBroken;
    QGuiApplication::restoreOverrideCursor();
    m_isSaving = false;
    return isSaved;
}

void CPictorelDlg::saveAndLeave()
{
    m_isLeaving = true;
    saveNow();
    // What is just being taken or saved is waited for, and comes along.
    if (m_isSaving || isWaitingAlive()) {
        QTimer::singleShot(retryPeriod, this, &CPictorelDlg::saveAndLeave);
        return;
    }
    close();
    QCoreApplication::quit(); // a message may be open, which close() does not close
}

void CPictorelDlg::saveQuietly()
{
    saveNow();
    if (m_isSaving || isWaitingAlive())
        QTimer::singleShot(retryPeriod, this, &CPictorelDlg::saveQuietly);
    else if (!m_isLeaving && m_liveView) // what the other screens show is not there any more
        QTimer::singleShot(0, this, &CPictorelDlg::OnLive);
}

// Does nothing while something is being saved, or when there is nothing to save.
void CPictorelDlg::saveNow()
{
    if (m_isSaving || !m_liveView || !WebcamUtil::isSaveFile())
        return;
    stop_window();
    if (!saveCaptures(movieLimitAtLogOut))
        qCWarning(closingLog, "Not everything that was taken could be saved; the rest is in %s.",
                  qUtf8Printable(WebcamUtil::getTemporaryPath()));
}

void CPictorelDlg::closeEvent(QCloseEvent *event)
{
    if (event->spontaneous() || isWaitingAlive()) {
        event->ignore();
        m_closeTimer->start(); // a window that is being asked to close cannot close
        return;
    }
    m_timerView->Stop(); // no shot is taken any more
    m_returnTimer->stop();
    m_quietTimer->stop();
    m_screenAwake->keep(false);
    hide(); // a slow disk may still take a movie
    closeViews();
    QWidget::closeEvent(event);
}

void CPictorelDlg::closeViews()
{
    if (m_liveView) {
        if (m_liveView->isCreate())
            m_liveView->Release();
        // Closed from outside while a message is open, a command still stands in the middle of its work: the
        // live view then goes with the window.
        if (!QApplication::activeModalWidget()) {
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
