#pragma once

#include "platform/gsthandles.h"

#include <memory>

// One picture of the camera at its full size, as it came off the decoder. It is never written to, so it can
// be shared among threads.
struct CapturedFrame {
    GstVideoInfo info{};
    BufferHandle picture;
    BufferHandle jpeg;          // what it was decoded from; null unless the camera sends JPEG
    GstClockTime clockTime = 0; // capture time on GStreamer's system clock, nanoseconds
};

using FramePtr = std::shared_ptr<const CapturedFrame>;
