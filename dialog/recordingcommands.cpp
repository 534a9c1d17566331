// Recording a movie and watching one.

#include "dialog/pictoreldlg.h"

#include "capture/livevideowidget.h"
#include "capture/timerwidget.h"
#include "util/files/timetext.h"
#include "widgets/moviewidget.h"
#include "widgets/stretchbitmapbutton.h"

static constexpr qint64 millisecondsPerSecond = 1000;

void CPictorelDlg::OnRecord()
{
    stop_window();
    if (refuseOnFullDisk() || m_isRecording || !m_liveView->Record())
        return;
    m_recordedMovie = m_liveView->moviePath();
    m_isRecording = true;
    m_movie->hide();
    disableAllButton(false);
    m_movieStop->show();
    m_movieStop->setEnabled(true);
    m_isMovieShown = true;
    m_timerView->SetMode(TimerMode::Recording);
    m_timerView->show();
    m_timerView->run();
    m_close->setEnabled(false);
    focusMainButton();
}

void CPictorelDlg::OnMovieStop()
{
    if (!m_isRecording)
        return;
    if (m_liveView->isCreate())
        m_liveView->RecordStop();
    m_liveView->hide();
    m_timerView->Stop();
    m_isRecording = false;
    TransitionMode(DisplayMode::Movie);
    m_movieView->Create(m_recordedMovie);
    m_movieView->show();
    m_timerView->Stop();
    m_close->setEnabled(true);
    m_timerView->SetMode(TimerMode::Playback);
    m_timerView->show();
    m_isMovieShown = true;
    update();
}

void CPictorelDlg::OnMoviePlay()
{
    if (m_movieView->isComplete()) {
        m_timerView->Stop();
        setMovieTime();
        m_movieView->Stop();
    }
    m_movieView->show();
    m_movieView->Play();
    m_timerView->run();
    showPauseButton();
}

void CPictorelDlg::OnMoviePause()
{
    if (m_movieView->isComplete()) {
        m_timerView->Stop();
        setMovieTime();
        m_movieView->Stop();
    } else if (m_movieView->isPlaying()) {
        m_movieView->pause();
        m_timerView->Pause();
    }
    showPlayButton();
}

void CPictorelDlg::OnMovieFinished()
{
    showPlayButton();
    m_movieView->Stop();
    m_timerView->Stop();
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

void CPictorelDlg::showPlayButton()
{
    m_moviePlay->show();
    if (m_moviePause->hasFocus())
        focusOn(m_moviePlay);
    m_moviePause->hide();
}

void CPictorelDlg::showPauseButton()
{
    m_moviePause->show();
    if (m_moviePlay->hasFocus())
        focusOn(m_moviePause);
    m_moviePlay->hide();
}
