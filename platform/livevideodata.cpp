// The camera of a LiveVideoData and what it shows.

#include "platform/livevideodata.h"

#include "platform/capturelog.h"
#include "platform/devicewatch.h"
#include "platform/documentcamera.h"
#include "platform/h264coders.h"
#include "platform/movierecorder.h"
#include "platform/requiredelements.h"
#include "util/files/alivewait.h"

#include <QDeadlineTimer>
#include <QPointer>

#include <algorithm>
#include <thread>

namespace
{

using namespace std::chrono_literals;

constexpr auto watchPeriod = 250ms;
constexpr auto filePeriod = 50ms;

constexpr auto frameWait = 1s;
// A camera that is being opened is lost long before.
constexpr auto openingWait = 60s;
constexpr auto pluginWait = 30s;
// A camera closes in a tenth of this; one that does not is left to the end of the process.
constexpr unsigned long cameraCloseWait = 1000; // milliseconds

QStringList missingParts()
{
    if (!DeviceWatch::startGStreamer())
        return {QStringLiteral("GStreamer does not start")};
    return RequiredElements::missing();
}

} // namespace

void LiveVideoData::prepare()
{
    std::thread(&DeviceWatch::loadProviders).detach();
}

LiveVideoData::LiveVideoData() : m_cameraInUse(std::make_shared<std::timed_mutex>())
{
    connect(&m_target, &VideoTarget::boxChanged, this, &LiveVideoData::updateView);
    // Queued, since a timer rests while somebody whom it told waits.
    connect(&m_watch, &QTimer::timeout, this, &LiveVideoData::watch, Qt::QueuedConnection);
    connect(&m_fileWatch, &QTimer::timeout, this, &LiveVideoData::lookAtMovieFiles, Qt::QueuedConnection);
    m_watch.setInterval(watchPeriod);
    m_fileWatch.setInterval(filePeriod);
}

LiveVideoData::~LiveVideoData()
{
    m_listener = nullptr;
    finishMovies();
    closeCameraAndWait();
}

void LiveVideoData::setListener(CaptureListener *listener)
{
    m_listener = listener;
}

void LiveVideoData::SetTarget(QWidget *target)
{
    m_target.setWidget(target);
}

// Loads what GStreamer needs for it, unless prepare() has, and listens to what comes and goes from then on.
// False when this object has gone meanwhile, as in the next two.
bool LiveVideoData::followDevices()
{
    if (m_isFollowing)
        return true;
    const QPointer<LiveVideoData> self(this);
    const auto load = [] {
        DeviceWatch::loadProviders();
        return true;
    };
    static_cast<void>(doAside(load, pluginWait));
    if (!self)
        return false;
    m_isFollowing = true;
    connect(&DeviceWatch::instance(), &DeviceWatch::changed, this, &LiveVideoData::noteDevices,
            Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
    return true;
}

std::vector<CaptureDevice> LiveVideoData::awaitCameras()
{
    return followDevices() ? DeviceWatch::instance().awaitCameras() : std::vector<CaptureDevice>();
}

std::vector<CaptureDevice> LiveVideoData::awaitMicrophones()
{
    return followDevices() ? DeviceWatch::instance().awaitMicrophones() : std::vector<CaptureDevice>();
}

void LiveVideoData::Create()
{
    if (created && !m_isLost)
        return;
    const QPointer<LiveVideoData> self(this);
    const int use = ++m_useCount;
    const std::vector<CaptureDevice> listed = awaitCameras();
    if (!self || use != m_useCount)
        return;
    const QStringList missing = missingParts();
    supported = missing.isEmpty();
    if (!supported) {
        for (const QString &part : missing)
            qCCritical(cameraLog).noquote() << part;
        return;
    }
    hasVideoDevice = chooseCamera(listed);
    created = hasVideoDevice;
    isVeltrixCam = created && isDocumentCamera(m_camera.name);
    m_isLiveTold = false;
    if (created)
        openCamera();
}

bool LiveVideoData::chooseCamera(const std::vector<CaptureDevice> &listed)
{
    const CaptureDevice camera = m_memory.pick(listed);
    if (!camera.device)
        return false;
    // A camera that still hangs must not keep another one waiting.
    if (camera.device != m_camera.device)
        m_cameraInUse = std::make_shared<std::timed_mutex>();
    m_camera = camera;
    m_modes = modesOf(m_camera);
    m_mode = nativeMode(m_modes);
    return m_mode.isValid();
}

bool LiveVideoData::canReopen()
{
    if (created && !m_isLost)
        return false;
    const QPointer<LiveVideoData> self(this);
    const std::vector<CaptureDevice> listed = awaitCameras();
    return self && m_memory.canReopen(listed);
}

void LiveVideoData::openCamera()
{
    m_isLost = false;
    nativeWidth = m_mode.size.width();
    nativeHeight = m_mode.size.height();
    m_grabThread = std::make_unique<GrabThread>(CameraAccess{m_camera.device, m_cameraInUse}, m_mode);
    connect(m_grabThread.get(), &GrabThread::grabtrue, this, &LiveVideoData::grab);
    // A thread that is on its way out may still have a word under way.
    connect(m_grabThread.get(), &GrabThread::deviceerr, this, [this, thread = m_grabThread.get()] {
        if (thread == m_grabThread.get())
            lose(thread->failure());
    });
    updateView();
    m_grabThread->start();
    m_watch.start();
}

void LiveVideoData::noteLive()
{
    // Not before: it would take the processor from the first picture.
    static std::once_flag tried;
    std::call_once(tried, [] { std::thread(proveH264Hardware).detach(); });
    if (m_listener)
        m_listener->cameraIsLive();
}

void LiveVideoData::Release()
{
    ++m_useCount;
    const std::shared_ptr<MovieRecorder> movie = stopMovie();
    closeCamera();
    m_target.setPicture(QImage());
    created = false;
    m_isStarted = false;
    m_wantedSize = QSize();
    m_framing.zoom = Zoom();
    tellMovieEnd(movie, MovieEnd::Asked);
}

// The thread ends by itself, when the camera's driver lets it.
void LiveVideoData::closeCamera()
{
    m_watch.stop();
    if (!m_grabThread)
        return;
    m_grabThread->disconnect(this);
    m_grabThread->requestInterruption();
    GrabThread *thread = m_grabThread.release();
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    if (thread->isFinished())
        thread->deleteLater();
}

void LiveVideoData::closeCameraAndWait()
{
    if (!m_grabThread)
        return;
    m_grabThread->disconnect(this);
    m_grabThread->requestInterruption();
    if (!m_grabThread->wait(cameraCloseWait))
        static_cast<void>(m_grabThread.release());
}

void LiveVideoData::SetResolution(int width, int height)
{
    const QSize size(width, height);
    if (!created || !modeOfSize(m_modes, size).isValid())
        return;
    m_wantedSize = size;
    if (!m_movie && !m_startingMovie)
        applyResolution();
}

void LiveVideoData::applyResolution()
{
    const QSize size = std::exchange(m_wantedSize, QSize());
    if (size.isEmpty() || size == m_mode.size || !m_grabThread || m_isLost)
        return;
    closeCamera();
    m_mode = modeOfSize(m_modes, size);
    openCamera();
}

QStringList LiveVideoData::GetResoList() const
{
    return resolutionNames(m_modes);
}

QStringList LiveVideoData::GetVideoDeviceList()
{
    const QPointer<LiveVideoData> self(this);
    const std::vector<CaptureDevice> listed = awaitCameras();
    if (self)
        m_lastList = listed;
    return choiceNames(listed);
}

void LiveVideoData::SetVideoDevice(int index)
{
    if (index >= 0 && index < int(m_lastList.size()))
        m_memory.choose(m_lastList[size_t(index)]);
}

bool LiveVideoData::IsValidVideoDevice()
{
    return created && !m_isLost && m_grabThread && m_grabThread->newest();
}

// Null when none came, or when this object has gone or the camera is another one by then.
FramePtr LiveVideoData::awaitFrame()
{
    const QPointer<LiveVideoData> self(this);
    const int use = m_useCount;
    QDeadlineTimer limit(frameWait);
    FramePtr frame;
    const auto isOver = [&] {
        if (!self || use != m_useCount || m_isLost || !m_grabThread)
            return true;
        frame = m_grabThread->newest();
        // Opening has a limit of its own.
        if (!m_grabThread->isLive())
            limit = QDeadlineTimer(frameWait);
        return frame || limit.hasExpired();
    };
    static_cast<void>(waitAlive(isOver, openingWait));
    return frame;
}

void LiveVideoData::grab()
{
    if (!m_grabThread)
        return;
    const QImage picture = m_grabThread->picture();
    if (!picture.isNull())
        m_target.setPicture(picture);
    if (m_grabThread->isLive() && !std::exchange(m_isLiveTold, true))
        noteLive();
}

void LiveVideoData::noteDevices()
{
    const QPointer<LiveVideoData> self(this);
    m_memory.follow(DeviceWatch::instance().cameras());
    device();
    if (self && m_listener)
        m_listener->devicesChanged();
}

void LiveVideoData::device()
{
    if (created && !m_isLost && !isListed())
        lose({CameraFault::Unplugged, QStringLiteral("It has left the list of cameras.")});
}

bool LiveVideoData::isListed() const
{
    const std::vector<CaptureDevice> listed = DeviceWatch::instance().cameras();
    return std::any_of(listed.begin(), listed.end(),
                       [this](const CaptureDevice &camera) { return isSameDevice(camera, m_camera); });
}

// Runs for as long as the camera is open: a silent camera, or a movie that cannot go on, tells nobody.
void LiveVideoData::watch()
{
    const CameraFailure overdue = m_grabThread ? m_grabThread->overdue() : CameraFailure();
    if (overdue.fault != CameraFault::None)
        lose(overdue);
    else
        RecordMovie();
}

// An unplugged camera is reported by its stream and by its provider, in any order, so the second is ignored.
void LiveVideoData::lose(CameraFailure failure)
{
    if (m_isLost || !created)
        return;
    m_isLost = true;
    if (!isListed())
        failure.fault = CameraFault::Unplugged;
    qCWarning(cameraLog).noquote().nospace()
        << m_camera.name << ": " << faultName(failure.fault) << ": " << failure.text;
    if (m_grabThread && m_grabThread->isOpening())
        DeviceWatch::instance().setAside(m_camera, m_grabThread.get());
    // Its decoder may be what failed.
    const bool isUnexplained = failure.fault == CameraFault::Failed || failure.fault == CameraFault::Silent ||
                               failure.fault == CameraFault::NotAnswering;
    if (m_mode.coding == CaptureMode::Coding::H264 && isUnexplained)
        distrust(h264Decoder());
    m_memory.noteLoss(failure.fault, DeviceWatch::instance().cameras());
    const std::shared_ptr<MovieRecorder> movie = stopMovie();
    closeCamera();

    const QPointer<LiveVideoData> self(this);
    const int use = m_useCount;
    tellMovieEnd(movie, MovieEnd::CameraLost);
    if (self && use == m_useCount && m_listener)
        m_listener->cameraIsLost(failure.fault);
    if (self && use == m_useCount)
        emit deviceerr();
    if (self && use == m_useCount)
        emit disconnectDevice();
}
