// Which camera, and what happens without one.

#include "dialog/pictoreldlg.h"

#include "capture/livevideowidget.h"
#include "capture/selectdevicedlg.h"
#include "capture/timerwidget.h"
#include "util/webcamutil.h"
#include "widgets/moviewidget.h"

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
    if (m_isVideoPresent && m_isAudioPresent)
        return;
    stop_window();
    QString warning = tr("Cannot find Video / Audio Devices.");
    if (m_isAudioPresent)
        warning = tr("Cannot find Video Devices.");
    else if (m_isVideoPresent)
        warning = tr("Cannot find Audio Devices.");
    WebcamUtil::WarningMessage(warning, this);
}

void CPictorelDlg::changeNodevicemode()
{
    const bool isKnown = m_isErrorMode;
    m_isErrorMode = true;
    m_timerView->Stop();
    if (m_movieView->isCreated() && m_movieView->isPlaying()) {
        m_movieView->pause();
        m_timerView->Pause();
        showPlayButton();
    }
    if (m_liveView->isCreate())
        m_liveView->Release();
    stop_window();
    if (!isKnown)
        WebcamUtil::WarningMessage(
            tr("The video device is invalid. Please confirm whether the device is correctly connected. "),
            this);
    m_isVideoPresent = false;
    TransitionMode(DisplayMode::Live);
}
