#pragma once

#include "platform/camerapipeline.h"
#include "platform/framerenderer.h"
#include "platform/newestframe.h"

#include <QImage>
#include <QThread>

#include <opencv2/core/mat.hpp>

#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>

class MovieFeed;
class MovieRecorder;

// A camera's device together with the lock that says who has it open.
struct CameraAccess {
    std::shared_ptr<GstDevice> device;
    std::shared_ptr<std::timed_mutex> inUse;
};

// The thread through which all frames of one opened camera come: it opens the camera, takes the frames off
// the stream, hands them to the movie, makes the picture for the window, and closes the camera at its end.
// Nothing else touches the stream, so a camera whose driver hangs keeps only this thread.
class GrabThread : public QThread
{
    Q_OBJECT

public:
    // Started with start(); ends after requestInterruption() or when the camera fails.
    GrabThread(CameraAccess camera, const CaptureMode &mode);
    // The thread must have ended.
    ~GrabThread() override;

    // What the window shows: the box in device pixels into which the picture is fitted. An empty box, while
    // nothing is to be seen, saves the work.
    void setView(const QSize &box, const Framing &framing);
    // Hands every further whole frame to the movie, as its picture of what is shown, in place of the movie
    // before it, until it wants no more.
    void setMovie(const std::shared_ptr<MovieRecorder> &movie);

    // The latest picture for the window; null before the first. Shares its pixels.
    QImage picture() const;
    // The latest frame at the camera's full size, which may be damaged; null before the first.
    FramePtr newest() const { return m_frames->get(); }
    // Where the frames arrive, for whoever needs them longer than this object lives.
    std::shared_ptr<const NewestFrame> frames() const { return m_frames; }

    // Whether the first frame has come.
    bool isLive() const { return m_isLive; }
    // Whether the camera has not answered to being opened yet.
    bool isOpening() const { return m_isOpening; }
    // Whether the camera has used up its time: NotAnswering without a first frame fifteen seconds after the
    // start, Silent without a further one for three that was whole, as far as anybody looked; else without a
    // fault.
    CameraFailure overdue() const;
    // Why the camera could not be opened or broke off; once deviceerr() was emitted.
    CameraFailure failure() const;

signals:
    // The camera could not be opened, or its stream broke off.
    void deviceerr();
    // The first frame has come, or a new picture() is there. Not sent again before picture() has been called.
    void grabtrue();

protected:
    void run() override;

private:
    struct View {
        QSize box;
        Framing framing;
    };

    bool waitForAccess(std::unique_lock<std::timed_mutex> &access);
    void grabUntilStopped(CameraPipeline &pipeline);
    void grabLastOfMovie(CameraPipeline &pipeline);
    std::shared_ptr<MovieFeed> movie() const;
    void fail(CameraFailure failure);
    FramePtr grabAllWaiting(CameraPipeline &pipeline);
    bool canBeRead(const CapturedFrame &frame) const;
    void deliver(const FramePtr &frame);
    void record(const FramePtr &frame);
    void letGo(const std::shared_ptr<MovieFeed> &movie);
    void tellPicture();
    void show(const FramePtr &frame, const View &view);
    View view() const;

    cv::Mat m_frame; // the pixels of m_image; here because the class's interface has it
    QImage m_image;

    const CameraAccess m_camera;
    const CaptureMode m_mode;
    const std::shared_ptr<NewestFrame> m_frames;
    FramePlanes m_planes; // of the frame that is worked on, for movie and window
    FrameRenderer m_renderer;

    mutable std::mutex m_mutex; // guards m_frame, m_image, m_view, m_movie and m_failure
    View m_view;
    std::shared_ptr<MovieFeed> m_movie;
    CameraFailure m_failure;
    std::atomic<bool> m_isViewChanged{false};
    std::atomic<bool> m_isOpening{true};
    std::atomic<bool> m_isLive{false};
    mutable std::atomic<bool> m_isPictureAwaited{true};
    std::atomic<std::chrono::steady_clock::time_point> m_lastSignOfLife{std::chrono::steady_clock::now()};
};
