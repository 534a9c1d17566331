#pragma once

#include "platform/frameconverter.h"
#include "platform/frameplanes.h"
#include "platform/framing.h"

// Makes of a camera's frames the pictures of a movie: I420 of BT.709 in its limited range, which every player
// reads, and no larger than full HD. For one thread at a time.
class MoviePictures
{
public:
    // What the pictures of a movie are like that begins with shown pictures of that size.
    static GstVideoInfo infoOf(const QSize &shown);

    // Decodes a JPEG as far as make() needs it, which finds it in `planes`, or in a copy of them, then; and
    // as far as a window needs it that shows it in that box, so that it is not decoded twice.
    static void prepare(const FramePtr &frame, FramePlanes *planes, const Framing &framing,
                        const GstVideoInfo &info, const QSize &box);

    // What is shown of the frame, read through `planes`, as a picture of that kind. One that has been turned
    // since the movie began is fitted into it, between black bars. Null when the frame is damaged or cannot
    // be read.
    FramePtr make(const FramePtr &frame, FramePlanes *planes, const Framing &framing,
                  const GstVideoInfo &info);

private:
    BufferHandle memoryOf(guint bytes);
    bool draw(const FramePtr &frame, FramePlanes *planes, const Framing &framing, const QRect &place,
              GstVideoFrame *picture);
    bool drawGenerally(const CapturedFrame &frame, const Framing &framing, const QRect &place,
                       GstVideoFrame *picture);
    void put(const PicturePlanes &planes, const Turn &turn, const QRect &place, GstVideoFrame *picture);

    BufferPoolHandle m_pool; // null before the first
    guint m_pictureBytes = 0;
    FrameConverter m_general{GST_VIDEO_RESAMPLER_METHOD_LINEAR};
    PlaneMemory m_upright; // before it is turned
};
