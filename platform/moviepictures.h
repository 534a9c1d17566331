#pragma once

#include "platform/frameconverter.h"
#include "platform/frameplanes.h"
#include "platform/zoom.h"

// Makes of a camera's frames the pictures of a movie: I420 of BT.709 in its limited range, which every player
// reads, and no larger than full HD. For one thread at a time.
class MoviePictures
{
public:
    // What the pictures of a camera with frames of that size will be.
    static GstVideoInfo infoOf(const QSize &frame);

    // What the zoom shows of the frame, read through `planes`. Null when the frame is damaged or cannot be
    // read.
    FramePtr make(const FramePtr &frame, FramePlanes *planes, const Zoom &zoom);

private:
    FrameConverter m_general{GST_VIDEO_RESAMPLER_METHOD_LINEAR};
};
