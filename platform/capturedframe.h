#pragma once

#include "platform/gsthandles.h"

#include <QSize>

#include <memory>

// One picture of the camera at its full size, as the camera sent it: raw, or a JPEG. Its pixels are never
// written to, so it can be shared among threads.
struct CapturedFrame {
    GstVideoInfo info{}; // of a JPEG only the size
    BufferHandle picture;
    GstClockTime clockTime = 0; // capture time on GStreamer's system clock, nanoseconds
    bool isDamaged = false;     // so its driver says; whether a JPEG is whole shows when it is decoded

    bool isJpeg() const { return GST_VIDEO_INFO_FORMAT(&info) == GST_VIDEO_FORMAT_ENCODED; }
    QSize size() const { return {GST_VIDEO_INFO_WIDTH(&info), GST_VIDEO_INFO_HEIGHT(&info)}; }
};

using FramePtr = std::shared_ptr<const CapturedFrame>;
