#pragma once

#include "platform/camerafault.h"
#include "platform/capturedframe.h"
#include "platform/capturemode.h"

#include <chrono>

// A camera's stream from the device to its frames, raw or JPEG: source, fixed mode, frames, and of H.264 its
// decoder. Every call can last as long as the camera's driver takes, so only the thread that grabs the frames
// makes them.
class CameraPipeline
{
public:
    // Frames that may wait while the grabbing thread is busy with one; a movie gets them all. More would only
    // hold the driver's few buffers.
    static constexpr int mostWaitingFrames = 8;

    // Opens nothing yet. The device is borrowed for the construction only.
    CameraPipeline(GstDevice *device, const CaptureMode &mode);
    // Closes the camera.
    ~CameraPipeline();
    CameraPipeline(const CameraPipeline &) = delete;
    CameraPipeline &operator=(const CameraPipeline &) = delete;

    // Opens the camera and starts the stream. False when the camera refuses.
    bool open();

    // The next frame, waited for as long as told; null when none came.
    FramePtr nextFrame(std::chrono::milliseconds wait);

    // Whether the stream has ended with an error or by itself. Reads all messages that have come.
    bool hasFailed();
    // Why open() or hasFailed() found a failure: the first one that was told.
    const CameraFailure &failure() const { return m_failure; }

private:
    bool build(GstDevice *device, const CaptureMode &mode);
    void fail(CameraFailure failure);
    bool lacksItsEnd(GstBuffer *jpeg);
    GstClockTime captureTime(GstSample *sample) const;

    ElementHandle m_pipeline;
    BusHandle m_bus;
    ElementHandle m_sink;
    bool m_endsPictures = false; // some JPEG had its end marker
    CameraFailure m_failure;     // without a fault while all is well
};
