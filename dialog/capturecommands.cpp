// Live picture, single photos and series.

#include "dialog/pictoreldlg.h"

#include "capture/livevideowidget.h"
#include "capture/timerwidget.h"
#include "util/webcamutil.h"
#include "widgets/moviewidget.h"
#include "widgets/picturelistview.h"
#include "widgets/picturewidget.h"
#include "widgets/stretchbitmapbutton.h"

#include <QCoreApplication>
#include <QProcess>

void CPictorelDlg::OnLive()
{
    if (m_mode == DisplayMode::Live)
        return;
    allWidgethide();
    hiddenPictList();
    if (m_movieView->isCreated()) {
        m_movieView->Stop();
        m_movieView->Release();
    }
    m_isErrorMode = false;
    if (!m_liveView->isCreate())
        openCamera();
    m_liveView->setGeometry(m_viewRect);
    m_liveView->Start();
    m_movieView->hide();
    m_pictureView->hide();
    m_listView->Reset();
    m_listView->hide();
    m_timerView->Stop();
    TransitionMode(DisplayMode::Live);
    m_isMovieShown = false;
    update();
}

void CPictorelDlg::OnPhoto()
{
    stop_window();
    if (refuseOnFullDisk())
        return;
    allWidgethide();
    playShutterSound();
    TransitionMode(DisplayMode::Photo);
    if (m_hasPhotoPreview)
        m_liveView->show();
    m_currentPhoto.clear();
    m_currentPhoto = m_liveView->SaveBmp();
    showInPictureView(m_currentPhoto, QString());
    m_pictureView->setLabelText(tr("Still"));
    m_pictureView->show();
    m_isMovieShown = false;
    update();
}

void CPictorelDlg::OnRetake()
{
    if (!m_currentPhoto.isEmpty())
        WebcamUtil::deletetmpfile(WebcamUtil::getTemporaryPath() + "/" + m_currentPhoto);
    m_currentPhoto.clear();
    m_isMovieShown = false;
    OnLive();
}

void CPictorelDlg::OnAply()
{
    if (m_movieView->isCreated())
        m_movieView->Release();
    m_movieView->hide();
    m_liveView->hide();
    const bool hasPhotoPreview = m_hasPhotoPreview;
    m_hasPhotoPreview = false;
    TransitionMode(DisplayMode::Photo);
    m_hasPhotoPreview = hasPhotoPreview;
    // The viewer keeps what it has scaled down; the larger place deserves the photo itself.
    showInPictureView(m_currentPhoto, QString());
    m_pictureView->setLabelText(tr("Still"));
    update();
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
    allWidgethide();
    m_shotsTaken = 0;
    m_seriesList.clear();
    m_pictureView->Release();
    m_pictureView->Loadbmp(QString(), QString());
    m_timerView->reset();
    m_timerView->setcount(m_autoShootingTime);

    TransitionMode(DisplayMode::Series);
    m_liveView->show();
    m_listView->Release();
    m_listView->setSelectionMode(QAbstractItemView::NoSelection);
    m_listView->show();
    m_pictureView->show();

    disableAllButton(false);
    m_settings->hide();
    m_photoMulti->setEnabled(true);
    m_live->setEnabled(true);
    m_close->setEnabled(false);
    focusMainButton();

    if (m_isAutoShooting) {
        m_timerView->show();
        m_timerView->run();
    } else {
        OnShot();
    }
    // After run(): the first tick of a series passes unseen, and whoever pressed has a second to look up.
    m_timerView->SetMode(TimerMode::Countdown);
    m_isMovieShown = false;
    update();
}

void CPictorelDlg::OnShot()
{
    stop_window();
    playShutterSound();
    m_currentPhoto.clear();
    m_currentPhoto = m_liveView->SaveBmp();
    showInPictureView(m_currentPhoto, QString());
    m_pictureView->setLabelText(QString::number(m_shotsTaken + 1) + tr("/") +
                                QString::number(m_continuousCount));
    m_seriesList.append(m_currentPhoto);
    m_listView->AddPictureWithSelect(m_currentPhoto);
    ++m_shotsTaken;
    if (m_shotsTaken >= m_continuousCount)
        finishSeries();
}

void CPictorelDlg::finishSeries()
{
    m_listView->hide();
    m_liveView->hide();
    m_pictureView->hide();
    SetPictureListMode(m_seriesList);
    m_shotsTaken = 0;
    m_timerView->Stop();
    m_timerView->hide();
    m_timerView->reset();
    update();
}

bool CPictorelDlg::refuseOnFullDisk()
{
    if (WebcamUtil::chkdiskFreeSpace())
        return false;
    WebcamUtil::ShowDiskWorningMessage(this);
    m_isErrorMode = true;
    setErrModeButtonEnable();
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
