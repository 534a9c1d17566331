#pragma once

#include "platform/capturedframe.h"
#include "platform/frameconverter.h"
#include "platform/zoom.h"

#include <opencv2/core/mat.hpp>

#include <vector>

// Makes of a camera's frame the pixels that a window shows: the zoomed part, at the window's size, as 32-bit
// BGRx rows. Buffers are used again once nobody holds them. For one thread at a time.
class FrameRenderer
{
public:
    // The picture fitted into the box with its proportions kept; an empty matrix when that fails.
    cv::Mat render(const CapturedFrame &frame, const Zoom &zoom, const QSize &box);

private:
    cv::Mat freeBuffer(const QSize &size);
    bool scale(const CapturedFrame &frame, const QRect &part, const QSize &size);

    FrameConverter m_scaler{GST_VIDEO_RESAMPLER_METHOD_LINEAR};
    FrameConverter m_colours{GST_VIDEO_RESAMPLER_METHOD_NEAREST};
    GstVideoInfo m_scaledInfo{};
    BufferHandle m_scaled;
    std::vector<cv::Mat> m_buffers;
};
