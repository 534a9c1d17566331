#include "platform/grabthread.h"

#include <chrono>

namespace
{

using namespace std::chrono_literals;

// How soon the thread sees that it is to stop, pause or paint anew while no frames come.
constexpr auto frameWait = 50ms;

// A camera that has not been let go by its earlier user after this time will not be.
constexpr auto accessLimit = 3s;

qint64 now()
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

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
    : m_camera(std::move(camera)), m_mode(mode), m_lastSignOfLife(now())
{
}

GrabThread::~GrabThread() = default;

void GrabThread::setView(const QSize &box, const Zoom &zoom)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_view = {box, zoom};
    m_isViewChanged = true;
}

void GrabThread::setPaused(bool paused)
{
    noteSignOfLife();
    m_isPaused = paused;
}

void GrabThread::setSink(std::shared_ptr<FrameSink> sink)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_sink = std::move(sink);
}

QImage GrabThread::picture() const
{
    m_isPictureAwaited = true;
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_image;
}

qint64 GrabThread::silentFor() const
{
    return m_isPaused ? 0 : now() - m_lastSignOfLife;
}

void GrabThread::noteSignOfLife()
{
    m_lastSignOfLife = now();
}

void GrabThread::run()
{
    const std::unique_lock<std::timed_mutex> access(*m_camera.inUse, accessLimit);
    if (access && !isInterruptionRequested()) {
        CameraPipeline pipeline(m_camera.device.get(), m_mode);
        if (pipeline.open()) {
            m_isOpening = false;
            grabUntilStopped(pipeline);
        }
    }
    m_isOpening = false;
    if (!isInterruptionRequested())
        emit deviceerr();
}

void GrabThread::grabUntilStopped(CameraPipeline &pipeline)
{
    bool isPaused = false;
    while (!isInterruptionRequested() && !pipeline.hasFailed()) {
        if (isPaused != m_isPaused) {
            isPaused = m_isPaused;
            pipeline.setPaused(isPaused);
            // What lay under the camera before a pause is no picture of now.
            if (!isPaused)
                m_newest.put(nullptr);
        }
        const FramePtr frame = grabAllWaiting(pipeline);
        // A changed view shows the frame that is there already rather than wait for the next.
        if (m_isViewChanged.exchange(false) || frame)
            show(frame ? frame : m_newest.get(), view());
    }
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
    noteSignOfLife();
    m_newest.put(frame);
    std::shared_ptr<FrameSink> sink;
    Zoom zoom;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        sink = m_sink;
        zoom = m_view.zoom;
    }
    if (sink)
        sink->take(frame, zoom);
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
    const cv::Mat pixels = m_renderer.render(*frame, view.zoom, view.box);
    if (pixels.empty())
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_image = imageOver(pixels);
        m_frame = pixels;
    }
    if (m_isPictureAwaited.exchange(false))
        emit grabtrue();
}
