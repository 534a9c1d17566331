#pragma once

#include "platform/capturedframe.h"
#include "platform/zoom.h"

// Takes every frame of a running camera, in order, in the thread that grabs them; it must not block.
class FrameSink
{
public:
    virtual ~FrameSink() = default;
    virtual void take(const FramePtr &frame, const Zoom &zoom) = 0;
};
