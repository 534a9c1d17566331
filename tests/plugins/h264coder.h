// H.264 by x264enc, each frame a key frame.
#pragma once

#include "tests/plugins/framecoder.h"

class H264Coder : public FrameCoder
{
public:
    ~H264Coder() override;
    GstVideoColorimetry colorimetry() const override;
    GstBuffer *encode(Picture *picture) override;

private:
    bool start(const Picture &picture);

    GstElement *m_pipeline = nullptr;
    GstElement *m_in = nullptr;
    GstElement *m_out = nullptr;
    GstClockTime m_time = 0;
};
