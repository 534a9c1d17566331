// Recording a movie and watching one.

#include "dialog/pictoreldlg.h"

#include "capture/livevideowidget.h"
#include "capture/timerwidget.h"
#include "util/files/alivewait.h"
#include "util/files/timetext.h"
#include "util/webcamutil.h"
#include "widgets/moviewidget.h"

#include <QTimer>

#include <phonon/MediaObject>

static constexpr qint64 millisecondsPerSecond = 1000;

void CPictorelDlg::OnRecord()
{
    stop_window();
    if (refuseOnFullDisk() || facts().isMovieRunning() || !m_liveView->Record())
        return;
    m_isMovieShown = true;
    m_timerView->SetMode(TimerMode::Recording);
    m_timerView->run();
    refreshScreen();
}

void CPictorelDlg::OnMovieStop()
{
    if (!facts().isMovieRunning() || isWaitingAlive())
        return;
    const Cause end = facts().movie.why;
    if (m_liveView->isCreate())
        m_liveView->RecordStop();
    m_timerView->Stop();
    TransitionMode(DisplayMode::Movie);
    m_timerView->SetMode(TimerMode::Playback);
    m_isMovieShown = true;
    m_isMovieAwaited = true;
    loadRecordedMovie();
    tellOfMovie(end);
}

// Not before the file is whole, which on a slow disk takes its time.
void CPictorelDlg::loadRecordedMovie()
{
    if (!m_isMovieAwaited || m_mode != DisplayMode::Movie || facts().movie.state == MovieState::Finishing)
        return;
    m_isMovieAwaited = false;
    loadMovie(m_liveView->moviePath());
}

void CPictorelDlg::loadMovie(const QString &path)
{
    static_cast<void>(waitAlive([this] { return m_movieView->prepare(); }, noLimit, Input::KeptThroughout));
    m_movieView->Create(path);
    // Until then there is no time to be shown.
    connect(m_movieView->mediaObject(), &Phonon::MediaObject::totalTimeChanged, this,
            &CPictorelDlg::setMovieTime, Qt::UniqueConnection);
    m_isMovieLoaded = true;
    refreshScreen();
}

// What was wrong with a movie, once it is on the screen.
void CPictorelDlg::tellOfMovie(Cause end)
{
    if (end == Cause::Disk)
        WebcamUtil::ShowDiskWorningMessage(this);
    else if (!facts().movie.hasPreview)
        WebcamUtil::WarningMessage(tr("Save failed."), this);
    if (facts().sound == SoundState::LostInMovie)
        WebcamUtil::WarningMessage(LiveVideoWidget::invalidAudioText(), this);
}

void CPictorelDlg::OnMoviePlay()
{
    if (m_movieView->isComplete()) {
        m_timerView->Stop();
        setMovieTime();
        m_movieView->Stop();
    }
    m_isMovieLoaded = true;
    m_movieView->Play();
    refreshScreen();
    m_timerView->run();
}

void CPictorelDlg::OnMoviePause()
{
    if (m_movieView->isComplete()) {
        m_timerView->Stop();
        setMovieTime();
        m_movieView->Stop();
    } else if (m_movieView->isPlayWanted()) {
        m_movieView->pause();
        m_timerView->Pause();
    }
    refreshScreen();
}

void CPictorelDlg::OnMovieFinished()
{
    m_movieView->Stop();
    refreshScreen();
    m_timerView->Stop();
}

// Who has gone on to another screen does not need it any more.
void CPictorelDlg::tellOfPlayer()
{
    if (m_isLeaving || m_mode != DisplayMode::Movie)
        return;
    // A message in the middle of a wait would keep it from ending.
    if (isWaitingAlive())
        QTimer::singleShot(retryPeriod, this, &CPictorelDlg::tellOfPlayer);
    else
        WebcamUtil::WarningMessage(tr("Load failed."), this);
}

void CPictorelDlg::setMovieTime()
{
    // Half a second more rounds to the nearest second.
    constexpr qint64 rounding = millisecondsPerSecond / 2;
    const QString total = minutesAndSeconds(m_movieView->totalTime() / millisecondsPerSecond);
    const QString current =
        minutesAndSeconds((m_movieView->currentTime() + rounding) / millisecondsPerSecond);
    m_timerView->setText(current + "/" + total);
    // A player that has not yet found out how long the movie is says 0.
    if (current == total && m_movieView->totalTime() > 0)
        m_timerView->Stop();
}
