#include "platform/grabthread.h"

#include "platform/moviefeed.h"
#include "platform/movierecorder.h"

#include <thread>

namespace
{

using namespace std::chrono_literals;

// How soon the thread sees that it is to stop or paint anew while no frames come.
constexpr auto frameWait = 50ms;

// Some cameras wake up for seconds. One that has been let go by its earlier user or has started by then never
// will.
constexpr auto openingLimit = 15s;
// Even a dim room's long exposures bring several frames in this time.
constexpr auto silenceLimit = 3s;

// An image over the matrix's pixels, which it keeps alive.
QImage imageOver(const cv::Mat &pixels)
{
    auto *owner = new cv::Mat(pixels);
    return QImage(
        owner->data, owner->cols, owner->rows, int(owner->step), QImage::Format_RGB32,
        [](void *matrix) { delete static_cast<cv::Mat *>(matrix); }, owner);
}

} // namespace

GrabThread::GrabThread(CameraAccess camera, const CaptureMode &mode)
    : m_camera(std::move(camera)), m_mode(mode), m_frames(std::make_shared<NewestFrame>())
{
}

GrabThread::~GrabThread() = default;

void GrabThread::setView(const QSize &box, const Framing &framing)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_view = {box, framing};
    m_isViewChanged = true;
}

void GrabThread::setMovie(const std::shared_ptr<MovieRecorder> &movie)
{
    auto feed = std::make_shared<MovieFeed>(movie);
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_movie.swap(feed);
    }
    // Of one that is not let go of yet the pictures that are being made are waited for.
    if (feed)
        std::thread([former = std::move(feed)] {}).detach();
}

QImage GrabThread::picture() const
{
    m_isPictureAwaited = true;
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_image;
}

CameraFailure GrabThread::overdue() const
{
    const auto silent = std::chrono::steady_clock::now() - m_lastSignOfLife.load();
    if (!m_isLive && silent > openingLimit)
        return {CameraFault::NotAnswering,
                QStringLiteral("It has given no picture within fifteen seconds of being opened.")};
    if (m_isLive && silent > silenceLimit)
        return {CameraFault::Silent, QStringLiteral("It has given no picture for three seconds.")};
    return {};
}

CameraFailure GrabThread::failure() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_failure;
}

void GrabThread::run()
{
    std::unique_lock<std::timed_mutex> access(*m_camera.inUse, std::defer_lock);
    if (!waitForAccess(access)) {
        fail({CameraFault::NotAnswering, QStringLiteral("An earlier opening of it has not ended.")});
        return;
    }
    CameraPipeline pipeline(m_camera.device.get(), m_mode);
    if (pipeline.open()) {
        m_isOpening = false;
        grabUntilStopped(pipeline);
        grabLastOfMovie(pipeline);
    }
    fail(pipeline.failure());
}

// Told before the camera is closed, which it may not let happen.
void GrabThread::fail(CameraFailure failure)
{
    m_isOpening = false;
    if (isInterruptionRequested())
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_failure = std::move(failure);
    }
    emit deviceerr();
}

bool GrabThread::waitForAccess(std::unique_lock<std::timed_mutex> &access)
{
    const auto limit = std::chrono::steady_clock::now() + openingLimit;
    while (!isInterruptionRequested() && std::chrono::steady_clock::now() < limit) {
        if (access.try_lock_for(frameWait))
            return true;
    }
    return false;
}

void GrabThread::grabUntilStopped(CameraPipeline &pipeline)
{
    while (!isInterruptionRequested() && !pipeline.hasFailed()) {
        const FramePtr frame = grabAllWaiting(pipeline);
        // A changed view shows the frame that is there already rather than wait for the next.
        if (m_isViewChanged.exchange(false) || frame)
            show(frame ? frame : newest(), view());
        if (frame && canBeRead(*frame))
            m_lastSignOfLife = std::chrono::steady_clock::now();
        m_planes.release();
    }
}

// A camera with a bad cable, or one that has changed its pictures without telling, may send none that can,
// until it is opened anew. A JPEG shows it when it is decoded: while nobody looks, each one counts.
bool GrabThread::canBeRead(const CapturedFrame &frame) const
{
    if (frame.isDamaged)
        return false;
    return frame.isJpeg() ? !m_planes.hasFoundDamage(frame)
                          : MappedFrame(frame.info, frame.picture.get(), GST_MAP_READ).isValid();
}

// What was captured before the movie's end, and comes after the thread was asked to end.
void GrabThread::grabLastOfMovie(CameraPipeline &pipeline)
{
    const std::shared_ptr<MovieFeed> last = movie();
    if (!last)
        return;
    const auto limit = std::chrono::steady_clock::now() + last->lastFrameLimit();
    while (movie() && !pipeline.hasFailed() && std::chrono::steady_clock::now() < limit) {
        if (const FramePtr frame = pipeline.nextFrame(frameWait))
            record(frame);
    }
    m_planes.release();
    letGo(last); // before the camera is closed, which it may not let happen
}

std::shared_ptr<MovieFeed> GrabThread::movie() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_movie;
}

// Hands on every frame that has come and returns the last: the window never gets behind.
FramePtr GrabThread::grabAllWaiting(CameraPipeline &pipeline)
{
    FramePtr last = pipeline.nextFrame(frameWait);
    if (!last)
        return last;
    deliver(last);
    // No more than can have been waiting: the picture must go on even when handing on takes a frame's time.
    for (int waiting = 1; waiting < CameraPipeline::mostWaitingFrames; ++waiting) {
        const FramePtr frame = pipeline.nextFrame(0ms);
        if (!frame)
            break;
        deliver(frame);
        last = frame;
    }
    return last;
}

void GrabThread::deliver(const FramePtr &frame)
{
    m_frames->put(frame);
    if (!m_isLive) {
        m_lastSignOfLife = std::chrono::steady_clock::now(); // whatever it is worth
        m_isLive = true;
        tellPicture();
    }
    record(frame);
}

void GrabThread::record(const FramePtr &frame)
{
    const std::shared_ptr<MovieFeed> current = movie();
    if (!current)
        return;
    const View shown = view();
    if (current->wants(*frame))
        current->add(frame, &m_planes, shown.framing, shown.box);
    else
        letGo(current);
}

// Unless there is another one by now.
void GrabThread::letGo(const std::shared_ptr<MovieFeed> &movie)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_movie == movie)
        m_movie.reset();
}

void GrabThread::tellPicture()
{
    if (m_isPictureAwaited.exchange(false))
        emit grabtrue();
}

GrabThread::View GrabThread::view() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_view;
}

void GrabThread::show(const FramePtr &frame, const View &view)
{
    if (!frame || view.box.isEmpty())
        return;
    const cv::Mat pixels = m_renderer.render(frame, &m_planes, view.framing, view.box);
    if (pixels.empty())
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_image = imageOver(pixels);
        m_frame = pixels;
    }
    tellPicture();
}
