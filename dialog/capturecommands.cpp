// Live picture, single photos and series.

#include "dialog/pictoreldlg.h"

#include "capture/livevideowidget.h"
#include "capture/timerwidget.h"
#include "util/files/alivewait.h"
#include "util/webcamutil.h"
#include "widgets/moviewidget.h"
#include "widgets/picturelistview.h"
#include "widgets/picturewidget.h"

#include <QCoreApplication>
#include <QProcess>

void CPictorelDlg::OnLive()
{
    if (m_mode == DisplayMode::Live)
        return;
    hiddenPictList();
    if (m_movieView->isCreated()) {
        m_movieView->Stop();
        m_movieView->Release();
    }
    m_isErrorMode = false;
    if (!m_liveView->isCreate())
        openCamera();
    showLive();
    m_isMovieShown = false;
}

void CPictorelDlg::showLive()
{
    m_liveView->setGeometry(m_layout.rectOf(Place::Live));
    m_liveView->Start();
    m_listView->Reset();
    m_timerView->Stop();
    TransitionMode(DisplayMode::Live);
}

void CPictorelDlg::OnPhoto()
{
    stop_window();
    if (refuseOnFullDisk())
        return;
    playShutterSound();
    m_pictureView->Release();
    m_liveView->announcePhoto();
    TransitionMode(DisplayMode::Photo);
    m_isMovieShown = false;
    takePhoto();
    refreshScreen();
}

// False, after it was told, when it could not be saved.
bool CPictorelDlg::takePhoto()
{
    const bool isSaved = !m_liveView->SaveBmp().isEmpty();
    showTakenPicture();
    m_liveView->forgetPicture();
    if (!isSaved)
        tellOfFailedPhoto();
    return isSaved;
}

// The photo as it was taken, while its file is still being written.
void CPictorelDlg::showTakenPicture()
{
    const Facts::Photo &photo = facts().photo;
    if (photo.picture.isNull() || (m_mode != DisplayMode::Photo && m_mode != DisplayMode::Series))
        return;
    m_pictureView->showPicture(photo.name, photo.picture);
    if (m_mode == DisplayMode::Photo)
        m_pictureView->setLabelText(tr("Still"));
}

// The picture stays empty. A camera that was lost is told as such.
void CPictorelDlg::tellOfFailedPhoto()
{
    m_timerView->Stop();
    m_pictureView->Release();
    const Facts now = facts();
    if (now.photo.why == Cause::Disk)
        WebcamUtil::ShowDiskWorningMessage(this);
    else if (now.hasCamera())
        WebcamUtil::WarningMessage(tr("Save failed."), this);
}

void CPictorelDlg::OnRetake()
{
    const QString photo = facts().photo.name;
    m_liveView->forgetPhoto();
    if (!photo.isEmpty())
        WebcamUtil::deletetmpfile(WebcamUtil::getTemporaryPath() + "/" + photo);
    m_isMovieShown = false;
    OnLive();
}

void CPictorelDlg::OnAply()
{
    if (m_movieView->isCreated())
        m_movieView->Release();
    TransitionMode(DisplayMode::Photo, Variant::Accepted);
    // The viewer keeps what it has scaled down; the larger place deserves the photo itself.
    showInPictureView(facts().photo.name, QString());
    m_pictureView->setLabelText(tr("Still"));
}

void CPictorelDlg::OnPhotSeq()
{
    stop_window();
    if (refuseOnFullDisk())
        return;
    if (m_mode != DisplayMode::Series) {
        startSeries();
        return;
    }
    if (m_shotsTaken < m_continuousCount && m_isAutoShooting) {
        m_timerView->Stop();
        m_timerView->run();
    }
    OnShot();
}

void CPictorelDlg::startSeries()
{
    m_shotsTaken = 0;
    m_seriesList.clear();
    m_pictureView->Release();
    m_timerView->reset();
    m_timerView->setcount(m_autoShootingTime);
    m_isMovieShown = false;
    m_isSeriesRunning = true;
    TransitionMode(DisplayMode::Series);
    m_listView->setSelectionMode(QAbstractItemView::NoSelection);

    if (m_isAutoShooting)
        m_timerView->run();
    else
        OnShot();
    // After run(): the first tick of a series passes unseen, and whoever pressed has a second to look up.
    m_timerView->SetMode(TimerMode::Countdown);
}

void CPictorelDlg::OnShot()
{
    // The timer may tick while a shot is still being written, on a slow disk, or a message is read.
    if (isWaitingAlive() || !m_isSeriesRunning)
        return;
    stop_window();
    playShutterSound();
    m_pictureView->setLabelText(QString::number(m_shotsTaken + 1) + tr("/") +
                                QString::number(m_continuousCount));
    if (!takePhoto()) {
        finishSeries();
        return;
    }
    m_seriesList.append(facts().photo.name);
    m_listView->AddPictureWithSelect(facts().photo.name);
    ++m_shotsTaken;
    if (m_shotsTaken >= m_continuousCount)
        finishSeries();
}

void CPictorelDlg::finishSeries()
{
    if (!m_isSeriesRunning) // left while a message was read
        return;
    m_shotsTaken = 0;
    m_isSeriesRunning = false;
    m_timerView->Stop();
    m_timerView->reset();
    if (m_seriesList.isEmpty())
        OnLive();
    else
        SetPictureListMode(m_seriesList);
}

// As measured now.
bool CPictorelDlg::hasRoom()
{
    m_liveView->lookForRoom();
    return facts().hasRoom;
}

bool CPictorelDlg::refuseOnFullDisk()
{
    if (hasRoom())
        return false;
    WebcamUtil::ShowDiskWorningMessage(this);
    m_isErrorMode = true;
    refreshScreen();
    return true;
}

void CPictorelDlg::playShutterSound()
{
    if (!m_soundCommand.isEmpty())
        QProcess::startDetached(m_soundCommand, {QCoreApplication::applicationDirPath() + "/photo.wav"});
}

// Without a name the viewer is emptied: it must not go on showing the photo before.
void CPictorelDlg::showInPictureView(const QString &name, const QString &folder)
{
    if (name.isEmpty())
        m_pictureView->Release();
    else
        m_pictureView->Loadbmp(name, folder);
}
