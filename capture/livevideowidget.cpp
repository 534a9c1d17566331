#include "capture/livevideowidget.h"

#include "capture/livecapture.h"
#include "capture/livewaiting.h"
#include "capture/picturehands.h"
#include "capture/touchdriver.h"
#include "platform/playerplugins.h"
#include "util/desktop/accessiblerole.h"
#include "util/desktop/fonts.h"
#include "util/files/alivewait.h"
#include "util/webcamutil.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QRegExp>
#include <QTimer>

#include <chrono>
#include <future>
#include <thread>
#include <utility>

namespace
{

using namespace std::chrono_literals;

// Most cameras open in a fraction of this, and a note would only flash up.
constexpr auto noteworthyOpening = 700ms;
// A sound server that hangs is not waited for.
constexpr auto playerPatience = 2s;

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

void LiveVideoWidget::preparePlayer()
{
    // In a thread that nobody waits to have back: other work would have to make one, and so wait for it.
    std::packaged_task<void()> loading(loadPlayerPlugins);
    m_playerLoading = loading.get_future();
    std::thread(std::move(loading)).detach();
}

LiveVideoWidget::LiveVideoWidget(QWidget *parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), m_capture(std::make_unique<LiveCapture>())
{
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    setAttribute(Qt::WA_NoSystemBackground, false);
    setAttribute(Qt::WA_PaintOnScreen, false);
    setPalette(blackWithGreenText(palette()));

    setAccessibleRole(this, QAccessible::Graphic);
    setAccessibleName(tr("Live picture"));
    m_pictureFrame = new QFrame(this);
    m_shotTimer = new QTimer(this);
    connect(m_shotTimer, &QTimer::timeout, this, &LiveVideoWidget::execShot);
    connect(&m_capture->data, &LiveVideoData::disconnectDevice, this, &LiveVideoWidget::slotdisconnectDevice);
    setUpPictureFrame();
    setUpOverlay();
    setUpCaption();
    setUpOpeningNote();
    CDriverProxy::get()->initialize(this);
}

LiveVideoWidget::~LiveVideoWidget()
{
    letGo();
    CDriverProxy::get()->initialize(nullptr);
    // The libraries that it looks through are taken down when the program ends.
    if (m_playerLoading.valid())
        m_playerLoading.wait_for(playerPatience);
}

void LiveVideoWidget::setUpPictureFrame()
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pictureFrame);
    adjustSize();
    m_capture->data.SetTarget(m_pictureFrame);
}

// Lies over the picture, so that the mouse is caught wherever it is pressed.
void LiveVideoWidget::setUpOverlay()
{
    m_overlay = new QWidget(this);
    m_overlay->installEventFilter(this);
    // Sees the mouse before the view does, which keeps it.
    m_hands = new PictureHands(&m_capture->data, m_overlay);
    connect(m_hands, &PictureHands::turned, this, &LiveVideoWidget::noteTurn);
    m_touchDriver = new TouchDriver(m_overlay);
    m_overlay->hide();
}

void LiveVideoWidget::setUpCaption()
{
    m_liveCaption = new QLabel(tr("LIVE"), this);
    m_liveCaption->setAutoFillBackground(true);
    m_liveCaption->setPalette(blackWithGreenText(m_liveCaption->palette()));
    m_liveCaption->setFont(captionFont());
    m_liveCaption->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_liveCaption->adjustSize();
    m_liveCaption->hide();
}

void LiveVideoWidget::setUpOpeningNote()
{
    m_openingNote = new QLabel(tr("The camera is being opened. Please wait..."), this);
    m_openingNote->setPalette(blackWithGreenText(m_openingNote->palette()));
    m_openingNote->setFont(captionFont());
    m_openingNote->setWordWrap(true);
    m_openingNote->setAlignment(Qt::AlignCenter);
    m_openingNote->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_openingNote->hide();
    m_openingTimer = new QTimer(this);
    m_openingTimer->setSingleShot(true);
    m_openingTimer->setInterval(noteworthyOpening);
    connect(m_openingTimer, &QTimer::timeout, m_openingNote, &QWidget::show);
    connect(&m_capture->facts, &CaptureFacts::changed, this, &LiveVideoWidget::followFacts);
}

void LiveVideoWidget::noteTurn()
{
    m_capture->facts.change([this](Facts &now) { now.quarterTurns = m_capture->data.quarterTurns(); });
}

void LiveVideoWidget::followFacts()
{
    if (!facts().now().hasCamera())
        letGo();
    if (facts().now().camera.state != CameraState::Opening) {
        m_openingTimer->stop();
        m_openingNote->hide();
    } else if (!m_openingTimer->isActive() && m_openingNote->isHidden()) {
        m_openingTimer->start();
    }
}

const CaptureFacts &LiveVideoWidget::facts() const
{
    return m_capture->facts;
}

void LiveVideoWidget::Create()
{
    if (m_capture->data.created || isBusy())
        return;
    {
        const Waiting waiting(this);
        m_capture->data.Create();
    }
    m_capture->isSupported = m_capture->data.supported;
    if (!m_capture->isSupported) {
        m_capture->devicesChanged();
        WebcamUtil::CriticalMessage(tr("Not Suport"), this);
        return;
    }
    // A missing camera is told by the dialog, together with a missing microphone.
    const bool hasCamera = m_capture->data.hasVideoDevice;
    m_capture->facts.change([hasCamera](Facts &now) {
        now.camera = {hasCamera ? CameraState::Opening : CameraState::None, Cause::None};
        now.canReopen = false;
        now.sound = SoundState::There;
    });
}

void LiveVideoWidget::lookForCamera()
{
    m_capture->devicesChanged();
}

bool LiveVideoWidget::isCreate() const
{
    return m_capture->data.created;
}

void LiveVideoWidget::Start()
{
    if (!m_capture->data.created)
        return;
    m_liveCaption->hide();
    m_capture->data.Start();
    m_liveCaption->show();
    m_overlay->setGeometry(rect());
    m_overlay->show();
}

void LiveVideoWidget::Stop()
{
    m_capture->data.Stop();
    endSeries();
}

void LiveVideoWidget::Release()
{
    const Waiting waiting(this);
    if (m_capture->data.created)
        m_capture->data.Release();
    endSeries();
    if (facts().now().isMovieRunning())
        noteEndOfMovie();
    m_capture->facts.change([](Facts &now) {
        if (now.hasCamera())
            now.camera = {CameraState::None, Cause::None};
    });
}

void LiveVideoWidget::Reset()
{
    m_capture->data.Reset();
}

void LiveVideoWidget::showEvent(QShowEvent *)
{
    m_capture->data.Reset();
    update();
}

void LiveVideoWidget::hideEvent(QHideEvent *event)
{
    letGo();
    QWidget::hideEvent(event);
}

void LiveVideoWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_overlay->setGeometry(rect());
    m_openingNote->setGeometry(rect());
}

void LiveVideoWidget::setResolution(const QString &text)
{
    const QStringList parts = text.split(QRegExp(QStringLiteral("x")));
    if (m_capture->data.created)
        m_capture->data.SetResolution(parts.value(0).toInt(), parts.value(1).toInt());
}

QStringList LiveVideoWidget::GetResoList() const
{
    return m_capture->data.GetResoList();
}

QStringList LiveVideoWidget::getVideoDeviceList()
{
    return m_capture->data.GetVideoDeviceList();
}

void LiveVideoWidget::setVideoDevice(int index)
{
    m_capture->data.SetVideoDevice(index);
}

QSize LiveVideoWidget::getNativeSize() const
{
    return {m_capture->data.nativeWidth, m_capture->data.nativeHeight};
}

bool LiveVideoWidget::isVeltrixCam() const
{
    return m_capture->data.isVeltrixCam;
}

bool LiveVideoWidget::isVideoValid() const
{
    return facts().now().hasCamera();
}

bool LiveVideoWidget::isAudioValid() const
{
    return facts().now().sound != SoundState::Missing;
}

void LiveVideoWidget::Zoomin()
{
    if (m_capture->data.created)
        m_capture->data.ZoomIn();
}

void LiveVideoWidget::Zoomout()
{
    if (m_capture->data.created)
        m_capture->data.ZoomOut();
}

void LiveVideoWidget::slotdisconnectDevice()
{
    m_isLossToTell = true;
    tellHeldLoss();
}

void LiveVideoWidget::tellHeldLoss()
{
    if (!isBusy() && std::exchange(m_isLossToTell, false))
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
