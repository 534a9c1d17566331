#pragma once

#include "platform/capturedframe.h"

// Takes the movie picture of every frame of a running camera, in order, in the thread that grabs them; it
// must not block.
class FrameSink
{
public:
    virtual ~FrameSink() = default;
    // Whether it takes a frame that was captured then, on GStreamer's system clock. Asked before each; after
    // a no it is neither asked nor given anything any more.
    virtual bool wants(GstClockTime captured) = 0;
    virtual void take(const FramePtr &frame) = 0;
    // The camera gives no further frame.
    virtual void noteLastFrame() = 0;
    // What these pictures are to be like; the same at all times.
    virtual const GstVideoInfo &pictureInfo() const = 0;
};
