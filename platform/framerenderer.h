#pragma once

#include "platform/capturedframe.h"
#include "platform/framing.h"
#include "platform/screenpixels.h"

#include <opencv2/core/mat.hpp>

#include <vector>

// Makes of a camera's frame the pixels that a window shows: the zoomed part, turned, at the window's size, as
// 32-bit BGRx rows. Buffers are used again once nobody holds them. For one thread at a time.
class FrameRenderer
{
public:
    // The picture, read through `planes`, fitted into the box with its proportions kept; an empty matrix when
    // that fails or the frame is damaged.
    cv::Mat render(const FramePtr &frame, FramePlanes *planes, const Framing &framing, const QSize &box);

private:
    cv::Mat freeBuffer(const QSize &size);

    ScreenPixels m_pixels;
    cv::Mat m_upright; // before it is turned
    std::vector<cv::Mat> m_buffers;
};
