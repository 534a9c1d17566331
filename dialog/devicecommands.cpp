// Which camera, and what happens without one.

#include "dialog/pictoreldlg.h"

#include "capture/livevideowidget.h"
#include "capture/selectdevicedlg.h"
#include "capture/timerwidget.h"
#include "util/files/alivewait.h"
#include "util/webcamutil.h"
#include "widgets/moviewidget.h"

#include <QTimer>

#include <chrono>

namespace
{

using namespace std::chrono_literals;

// How soon a camera is tried that is there again. One that is there but cannot be opened is tried ever more
// seldom.
constexpr std::chrono::milliseconds firstReturn = 300ms;
constexpr std::chrono::milliseconds longestReturn = 30s;

} // namespace

bool CPictorelDlg::selectVideoDevice()
{
    const QStringList devices = m_liveView->getVideoDeviceList();
    if (devices.isEmpty())
        return true;
    SelectDeviceDlg choice(this);
    choice.setVideoDeviceList(devices);
    if (devices.size() > 1) {
        stop_window();
        WebcamUtil::moveToCenter(&choice, this);
        if (choice.exec() != QDialog::Accepted)
            return false;
        start_window(raisePeriodMs);
    }
    m_liveView->setVideoDevice(choice.getVideoDevice());
    return true;
}

void CPictorelDlg::chkdevice()
{
    if (m_liveView->isVideoValid() && m_liveView->isAudioValid())
        return;
    stop_window();
    QString warning = tr("Cannot find Video / Audio Devices.");
    if (m_liveView->isAudioValid())
        warning = tr("Cannot find Video Devices.");
    else if (m_liveView->isVideoValid())
        warning = tr("Cannot find Audio Devices.");
    WebcamUtil::WarningMessage(warning, this);
}

void CPictorelDlg::changeNodevicemode()
{
    if (m_isLeaving)
        return;
    // A message in the middle of a wait would keep it from ending.
    if (isWaitingAlive()) {
        QTimer::singleShot(retryPeriod, this, &CPictorelDlg::changeNodevicemode);
        return;
    }
    // It was not there yet for whoever has gone on to another screen.
    if (m_isReturning && m_mode != DisplayMode::Live) {
        m_isReturning = false;
        m_liveView->Release();
        m_liveView->lookForCamera();
        return;
    }
    const bool isKnown = m_isErrorMode;
    const bool wasRecording = facts().isMovieRunning();
    m_isErrorMode = true;
    m_isReturning = false;
    m_timerView->Stop();
    if (m_movieView->isPlayWanted()) {
        m_movieView->pause();
        m_timerView->Pause();
    }
    if (m_liveView->isCreate())
        m_liveView->Release();
    stop_window();
    if (!isKnown)
        WebcamUtil::WarningMessage(
            tr("The video device is invalid. Please confirm whether the device is correctly connected. "),
            this);
    if (wasRecording)
        tellOfMovie(Cause::Camera);
    TransitionMode(DisplayMode::Live);
    m_liveView->lookForCamera();
    followCamera(); // it may have come back while the message was read, on another screen
}

// The facts have changed, in the middle of a command or by themselves.
void CPictorelDlg::followFacts()
{
    if (!m_liveView)
        return;
    showTakenPicture();
    refreshScreen();
    if (m_isLeaving)
        return;
    // What is told or done now must not come in the middle of a wait.
    if (isWaitingAlive()) {
        m_followTimer->start();
        return;
    }
    loadRecordedMovie();
    if (facts().movie.isBroken) {
        m_liveView->forgetBrokenMovie();
        WebcamUtil::ShowDiskWorningMessage(this);
    }
    // One that has lost its camera is told, and left, with the camera.
    if (facts().movie.state == MovieState::Ended && facts().movie.why != Cause::Camera)
        OnMovieStop();
    followCamera();
}

// A camera that was lost, or has only now been plugged in, shows its picture without being asked for.
void CPictorelDlg::followCamera()
{
    const Facts now = facts();
    if (now.camera.state == CameraState::Live || !(now.canReopen || m_liveView->isCreate()))
        m_returnTimer->setInterval(firstReturn);
    if (now.camera.state == CameraState::Live && m_isReturning) {
        m_isReturning = false;
        m_isErrorMode = false;
        if (m_mode == DisplayMode::Live)
            showLive();
    } else if (now.canReopen && m_mode == DisplayMode::Live && !m_returnTimer->isActive()) {
        m_returnTimer->start();
    }
}

void CPictorelDlg::reopenCamera()
{
    if (!m_liveView || m_isLeaving)
        return;
    if (isWaitingAlive()) {
        m_returnTimer->start();
        return;
    }
    m_liveView->lookForCamera();
    if (m_mode != DisplayMode::Live || m_liveView->isCreate() || !facts().canReopen)
        return;
    m_isReturning = true;
    m_returnTimer->setInterval(qMin(2 * m_returnTimer->intervalAsDuration(), longestReturn));
    openCamera();
    m_liveView->Start();
}
