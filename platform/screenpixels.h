#pragma once

#include "platform/frameconverter.h"
#include "platform/frameplanes.h"

#include <opencv2/core/mat.hpp>

// Turns parts of a camera's frames into the 32-bit BGRx rows that a screen shows. For one thread at a time.
class ScreenPixels
{
public:
    // Fills all of `pixels` with the part of the frame, read through `planes`. False for a damaged frame and
    // for one that cannot be read. The part starts and, but at the frame's edges, ends on even pixels.
    bool convert(const FramePtr &frame, const QRect &part, FramePlanes *planes, cv::Mat *pixels);

private:
    bool convertPlanes(const PicturePlanes &planes, cv::Mat *pixels);
    bool convertRgb(const CapturedFrame &frame, const QRect &part, cv::Mat *pixels);

    FrameConverter m_general{GST_VIDEO_RESAMPLER_METHOD_LINEAR};
    PlaneMemory m_scaled;
    cv::Mat m_unscaled;
};
