// JPEG frames such as cameras send them, and damage to them.
#pragma once

#include "tests/plugins/framecoder.h"

// Full range BT.601, the colours of every JPEG file.
GstVideoColorimetry jpegColorimetry();

class JpegCoder : public FrameCoder
{
public:
    GstVideoColorimetry colorimetry() const override { return jpegColorimetry(); }
    GstBuffer *encode(Picture *picture) override;
};

// What a bad cable makes of a frame. Transfer full.
GstBuffer *truncatedFrame(GstBuffer *frame);
GstBuffer *corruptedFrame(GstBuffer *frame);
