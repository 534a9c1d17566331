#pragma once

#include "platform/frameconverter.h"

#include <opencv2/core/mat.hpp>

// Turns parts of a camera's frames into the 32-bit BGRx rows that a screen shows, at the size they have. For
// one thread at a time.
class ScreenPixels
{
public:
    // Fills `pixels`, whose size is that of the part. False when the frame cannot be read or converted. The
    // part starts and, but at the frame's edges, ends on even pixels.
    bool convert(const GstVideoInfo &info, GstBuffer *picture, const QRect &part, cv::Mat *pixels);

private:
    bool convertUsual(const GstVideoInfo &info, GstBuffer *picture, const QRect &part, cv::Mat *pixels);
    // Packed pixels in the planes that the next step reads.
    struct Planes {
        const uint8_t *data[3] = {};
        int stride[3] = {};
    };
    Planes unpack(GstVideoFrame *frame, const QRect &part);

    FrameConverter m_general{GST_VIDEO_RESAMPLER_METHOD_NEAREST};
    cv::Mat m_planes[3];
};

// The frame's pixels in a buffer, which does not own them.
BufferHandle wrapPixels(const cv::Mat &pixels);
