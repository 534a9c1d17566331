#include "platform/livevideodata.h"

#include "platform/devicewatch.h"
#include "platform/movierecorder.h"
#include "platform/requiredelements.h"
#include "platform/stillpicture.h"

#include <QTextStream>

#include <algorithm>
#include <thread>

namespace
{

using namespace std::chrono_literals;

// The maker's document camera, by the name under which it is listed.
constexpr char ownCameraName[] = "Veltrix CX-20";

// Even a dim room's long exposures bring several frames in this time.
constexpr qint64 silenceLimit = 3000; // milliseconds
constexpr auto watchPeriod = 250ms;

constexpr auto firstFrameWait = 1000ms;
constexpr auto movieStopWait = 450ms;
constexpr auto movieCloseWait = 30s;
// A camera closes in a tenth of this; one that does not is left to the end of the process.
constexpr unsigned long cameraCloseWait = 1000; // milliseconds

QStringList missingParts()
{
    if (!DeviceWatch::startGStreamer())
        return {QStringLiteral("GStreamer does not start")};
    return RequiredElements::missing();
}

std::vector<CaptureMode> modesOf(const CaptureDevice &camera)
{
    const CapsHandle caps(gst_device_get_caps(camera.device.get()));
    return captureModes(caps.get(), !RequiredElements::h264Decoder().isEmpty());
}

} // namespace

void LiveVideoData::prepare()
{
    std::thread(&DeviceWatch::loadProviders).detach();
}

LiveVideoData::LiveVideoData() : m_cameraInUse(std::make_shared<std::timed_mutex>())
{
    connect(&m_target, &VideoTarget::boxChanged, this, &LiveVideoData::updateView);
    connect(&m_watch, &QTimer::timeout, this, &LiveVideoData::watch);
    m_watch.setInterval(watchPeriod);
}

LiveVideoData::~LiveVideoData()
{
    finishMovie();
    for (const auto &movie : m_unfinished)
        movie->finish(movieCloseWait);
    closeCameraAndWait();
}

void LiveVideoData::SetTarget(QWidget *target)
{
    m_target.setWidget(target);
}

void LiveVideoData::Create()
{
    const QStringList missing = missingParts();
    supported = missing.isEmpty();
    if (!supported) {
        QTextStream(stderr) << missing.join(QLatin1Char('\n')) << '\n';
        return;
    }
    connect(&DeviceWatch::instance(), &DeviceWatch::changed, this, &LiveVideoData::device,
            Qt::UniqueConnection);
    hasVideoDevice = chooseCamera();
    created = hasVideoDevice;
    isVeltrixCam = created && m_camera.name.contains(QLatin1String(ownCameraName));
    if (created)
        openCamera();
}

bool LiveVideoData::chooseCamera()
{
    const std::vector<CaptureDevice> cameras = DeviceWatch::instance().cameras();
    if (cameras.empty())
        return false;
    const CaptureDevice *chosen = m_chosen ? findAgain(cameras, *m_chosen) : nullptr;
    const CaptureDevice &camera = chosen ? *chosen : cameras.front();
    // A camera that still hangs must not keep another one waiting.
    if (camera.device != m_camera.device)
        m_cameraInUse = std::make_shared<std::timed_mutex>();
    m_camera = camera;
    m_modes = modesOf(camera);
    m_mode = nativeMode(m_modes);
    return m_mode.isValid();
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
            lose();
    });
    updateView();
    m_grabThread->setPaused(m_isStopped);
    m_grabThread->start();
    m_watch.start();
}

void LiveVideoData::Release()
{
    finishMovie();
    closeCamera();
    m_target.setPicture(QImage());
    created = false;
    m_isStarted = false;
    m_isStopped = false;
    m_wantedSize = QSize();
    m_zoom = Zoom();
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

void LiveVideoData::Start()
{
    m_isStarted = true;
    m_isStopped = false;
    if (m_grabThread)
        m_grabThread->setPaused(false);
    updateView();
}

void LiveVideoData::Stop()
{
    m_isStopped = true;
    if (m_grabThread && !m_movie)
        m_grabThread->setPaused(true);
}

void LiveVideoData::Reset()
{
    updateView();
}

void LiveVideoData::ZoomIn()
{
    m_zoom.in();
    updateView();
}

void LiveVideoData::ZoomOut()
{
    m_zoom.out();
    updateView();
}

void LiveVideoData::updateView()
{
    if (m_grabThread)
        m_grabThread->setView(m_isStarted ? m_target.box() : QSize(), m_zoom);
}

void LiveVideoData::SetResolution(int width, int height)
{
    const QSize size(width, height);
    if (!created || !modeOfSize(m_modes, size).isValid())
        return;
    m_wantedSize = size;
    if (!m_movie)
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
    m_lastList = DeviceWatch::instance().cameras();
    QStringList names;
    for (const CaptureDevice &camera : m_lastList)
        names << camera.name;
    return names;
}

void LiveVideoData::SetVideoDevice(int index)
{
    if (index >= 0 && index < int(m_lastList.size()))
        m_chosen = std::make_unique<CaptureDevice>(m_lastList[size_t(index)]);
}

bool LiveVideoData::IsValidVideoDevice()
{
    return created && !m_isLost && m_grabThread && m_grabThread->newest().get();
}

bool LiveVideoData::IsValidAudioDevice()
{
    return defaultMicrophone(DeviceWatch::instance().microphones()) != nullptr;
}

void LiveVideoData::Record(const QString &path)
{
    if (m_movie || !created || m_isLost || !m_grabThread)
        return;
    const auto limit = std::chrono::steady_clock::now() + firstFrameWait;
    const FramePtr frame = m_grabThread->newest().waitForOther(nullptr, limit);
    const std::vector<CaptureDevice> microphones = DeviceWatch::instance().microphones();
    const CaptureDevice *microphone = defaultMicrophone(microphones);
    if (!frame || !microphone)
        return;
    MovieSettings settings;
    settings.path = path;
    settings.picture = frame->info;
    if (m_mode.rateNumerator > 0)
        settings.framesPerSecond = qMax(1, qRound(m_mode.framesPerSecond()));
    settings.microphone = microphone->device;
    m_movie = MovieRecorder::start(settings, *frame, m_zoom);
    m_grabThread->setSink(m_movie);
}

bool LiveVideoData::IsRecording() const
{
    return m_movie != nullptr;
}

void LiveVideoData::RecordStop()
{
    finishMovie();
    applyResolution();
    if (m_isStopped && m_grabThread)
        m_grabThread->setPaused(true);
}

void LiveVideoData::finishMovie()
{
    if (!m_movie)
        return;
    if (m_grabThread)
        m_grabThread->setSink(nullptr);
    forgetFinishedMovies();
    if (!m_movie->finish(movieStopWait))
        m_unfinished.push_back(m_movie);
    m_movie.reset();
}

void LiveVideoData::forgetFinishedMovies()
{
    m_unfinished.erase(std::remove_if(m_unfinished.begin(), m_unfinished.end(),
                                      [](const auto &movie) { return movie->finish(0ms); }),
                       m_unfinished.end());
}

bool LiveVideoData::isFinishingMovie()
{
    forgetFinishedMovies();
    return !m_unfinished.empty();
}

bool LiveVideoData::SaveBitmap(QString path) // NOLINT(performance-unnecessary-value-param)
{
    return m_grabThread && saveStill(m_grabThread->newest(), m_zoom, path, firstFrameWait);
}

void LiveVideoData::grab()
{
    if (m_grabThread)
        m_target.setPicture(m_grabThread->picture());
}

void LiveVideoData::RecordMovie()
{
    if (!m_movie || !m_movie->mustEnd())
        return;
    RecordStop();
    emit devicestop();
}

void LiveVideoData::device()
{
    if (!created || m_isLost)
        return;
    const std::vector<CaptureDevice> cameras = DeviceWatch::instance().cameras();
    const bool isThere = std::any_of(cameras.begin(), cameras.end(), [this](const CaptureDevice &camera) {
        return isSameDevice(camera, m_camera);
    });
    if (!isThere)
        lose();
}

// Runs for as long as the camera is open: a silent camera, or a movie that cannot go on, tells nobody.
void LiveVideoData::watch()
{
    RecordMovie();
    if (m_grabThread && m_grabThread->silentFor() > silenceLimit)
        lose();
}

// An unplugged camera is reported by its stream and by its provider, in any order, so the second is ignored.
void LiveVideoData::lose()
{
    if (m_isLost || !created)
        return;
    m_isLost = true;
    finishMovie();
    if (m_grabThread && m_grabThread->isOpening())
        DeviceWatch::instance().setAside(m_camera, m_grabThread.get());
    closeCamera();
    emit deviceerr();
    emit disconnectDevice();
}
