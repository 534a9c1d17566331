#include "capture/livevideowidget.h"

#include "util/desktop/fonts.h"
#include "util/webcamutil.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QRegExp>
#include <QTimer>

namespace
{

constexpr int seriesPeriod = 5000; // milliseconds

const QColor captionColour(Qt::green);

QPalette blackWithGreenText(const QPalette &base)
{
    QPalette palette(base);
    palette.setColor(QPalette::Window, Qt::black);
    palette.setColor(QPalette::WindowText, captionColour);
    return palette;
}

} // namespace

void LiveVideoWidget::prepare()
{
    LiveVideoData::prepare();
}

LiveVideoWidget::LiveVideoWidget(QWidget *parent, Qt::WindowFlags flags) : QWidget(parent, flags)
{
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    setAttribute(Qt::WA_NoSystemBackground, false);
    setAttribute(Qt::WA_PaintOnScreen, false);
    setPalette(blackWithGreenText(palette()));

    m_pictureFrame = new QFrame(this);
    m_shotTimer = new QTimer(this);
    connect(m_shotTimer, &QTimer::timeout, this, &LiveVideoWidget::execShot);
    connect(&m_capture, &LiveVideoData::disconnectDevice, this, &LiveVideoWidget::slotdisconnectDevice);
    setUpPictureFrame();
    setUpOverlay();
    setUpCaption();
    CDriverProxy::get()->initialize(this);
}

LiveVideoWidget::~LiveVideoWidget()
{
    CDriverProxy::get()->initialize(nullptr);
}

void LiveVideoWidget::setUpPictureFrame()
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pictureFrame);
    adjustSize();
    m_capture.SetTarget(m_pictureFrame);
}

// Lies over the picture, so that the mouse is caught wherever it is pressed.
void LiveVideoWidget::setUpOverlay()
{
    m_overlay = new QWidget(this);
    m_overlay->installEventFilter(this);
    m_overlay->hide();
}

void LiveVideoWidget::setUpCaption()
{
    m_liveCaption = new QLabel(tr("LIVE"), this);
    m_liveCaption->setAutoFillBackground(true);
    m_liveCaption->setPalette(blackWithGreenText(m_liveCaption->palette()));
    m_liveCaption->setFont(captionFont());
    m_liveCaption->adjustSize();
    m_liveCaption->hide();
}

void LiveVideoWidget::Create()
{
    if (m_capture.created)
        return;
    m_capture.Create();
    if (!m_capture.supported) {
        WebcamUtil::CriticalMessage(tr("Not Suport"), this);
        return;
    }
    // A missing camera is told by the dialog, together with a missing microphone.
    m_isVideoValid = m_capture.hasVideoDevice;
    m_isAudioValid = true;
}

bool LiveVideoWidget::isCreate() const
{
    return m_capture.created;
}

void LiveVideoWidget::Start()
{
    if (!m_capture.created)
        return;
    m_liveCaption->hide();
    m_capture.Start();
    m_liveCaption->show();
    m_overlay->setGeometry(rect());
    m_overlay->show();
}

void LiveVideoWidget::Stop()
{
    m_capture.Stop();
    endSeries();
}

void LiveVideoWidget::Release()
{
    if (m_capture.created)
        m_capture.Release();
    endSeries();
    m_isVideoValid = false;
}

void LiveVideoWidget::endSeries()
{
    m_shotCount = 0;
    m_shotTimer->stop();
}

void LiveVideoWidget::Reset()
{
    m_capture.Reset();
}

void LiveVideoWidget::showEvent(QShowEvent *)
{
    m_capture.Reset();
    update();
}

void LiveVideoWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_overlay->setGeometry(rect());
}

void LiveVideoWidget::setResolution(const QString &text)
{
    const QStringList parts = text.split(QRegExp(QStringLiteral("x")));
    if (m_capture.created)
        m_capture.SetResolution(parts.value(0).toInt(), parts.value(1).toInt());
}

QStringList LiveVideoWidget::GetResoList() const
{
    return m_capture.GetResoList();
}

QStringList LiveVideoWidget::getVideoDeviceList()
{
    return m_capture.GetVideoDeviceList();
}

void LiveVideoWidget::setVideoDevice(int index)
{
    m_capture.SetVideoDevice(index);
}

QSize LiveVideoWidget::getNativeSize() const
{
    return {m_capture.nativeWidth, m_capture.nativeHeight};
}

bool LiveVideoWidget::isVeltrixCam() const
{
    return m_capture.isVeltrixCam;
}

QString LiveVideoWidget::SaveBmp()
{
    if (!m_capture.created)
        return {};
    const QString name = WebcamUtil::CreatePhotofilename();
    const QString path = WebcamUtil::getTemporaryPath() + QLatin1Char('/') + name;
    return m_capture.SaveBitmap(path) ? name : QString();
}

void LiveVideoWidget::ContinuesShot(int max)
{
    m_shotCount = 0;
    m_shotLimit = max;
    m_shotList.clear();
    m_shotTimer->start(seriesPeriod);
}

void LiveVideoWidget::execShot()
{
    const QString name = WebcamUtil::CreatePhotofilename();
    m_capture.SaveBitmap(name);
    m_shotList.append(name);
    ++m_shotCount;
    if (m_shotCount >= m_shotLimit) {
        m_shotTimer->stop();
        emit ShotMax();
    }
}

bool LiveVideoWidget::Record()
{
    m_moviePath = WebcamUtil::CreateMoviefilename();
    m_capture.Record(m_moviePath);
    if (warnOfInvalidDevices())
        return false;
    if (!m_capture.IsRecording()) {
        // With both devices at hand only the file can have been refused.
        WebcamUtil::ShowDiskWorningMessage(this);
        return false;
    }
    const QString previewPath = WebcamUtil::previewName(m_moviePath);
    // A movie of the same second is replaced, and so is its preview.
    WebcamUtil::deletetmpfile(previewPath);
    m_capture.SaveBitmap(previewPath);
    return true;
}

// The blank at the end of two of the texts belongs to them, for their translations.
bool LiveVideoWidget::warnOfInvalidDevices()
{
    QString warning;
    const bool isAudioValid = m_capture.IsValidAudioDevice();
    if (!m_capture.IsValidVideoDevice()) {
        m_isVideoValid = false;
        warning = isAudioValid
                      ? tr("The video device is invalid. Please confirm whether the device is correctly "
                           "connected. ")
                      : tr("The video device and the audio device are invalid. Please confirm whether the "
                           "device is correctly connected. ");
    } else if (!isAudioValid) {
        warning =
            tr("The audio device is invalid. Please confirm whether the device is correctly connected.");
    }
    if (warning.isEmpty())
        return false;
    m_isAudioValid = m_isAudioValid && isAudioValid;
    WebcamUtil::WarningMessage(warning, this);
    return true;
}

void LiveVideoWidget::RecordStop()
{
    m_capture.RecordStop();
}

bool LiveVideoWidget::isFinishingMovie()
{
    return m_capture.isFinishingMovie();
}

void LiveVideoWidget::Zoomin()
{
    if (m_capture.created)
        m_capture.ZoomIn();
}

void LiveVideoWidget::Zoomout()
{
    if (m_capture.created)
        m_capture.ZoomOut();
}

void LiveVideoWidget::slotdisconnectDevice()
{
    emit disconnectDevice();
}

// The picture is painted on the frame inside; the view itself paints nothing.
QPaintEngine *LiveVideoWidget::paintEngine() const
{
    return nullptr;
}

// The gesture is read from the mouse events; the fingers themselves are of no use to the view.
void LiveVideoWidget::notifyFingerDown(const QPoint &, int) {}
void LiveVideoWidget::notifyFingerMove(const QPoint &, int) {}
void LiveVideoWidget::notifyFingerUp(const QPoint &, int) {}
