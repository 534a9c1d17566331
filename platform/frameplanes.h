#pragma once

#include "platform/capturedframe.h"
#include "platform/pictureplanes.h"

class SparePlanes;

// Reads the planes of a camera's frames: of a JPEG only as far as it is wanted. For one thread at a time; a
// copy may be read in another one, and has what is there already too.
class FramePlanes
{
public:
    FramePlanes();

    // What the zoom's part of the frame is made of, for a picture of `size`: a JPEG is decoded at the least
    // scale that has the pixels for it. Of the JPEG asked for last, what is there already is used again.
    // Nothing for a damaged frame, and for raw formats without planes. Good until the next call.
    std::optional<PicturePlanes> read(const FramePtr &frame, const QRect &part, const QSize &size);

    // Whether the JPEG asked for last is this one, and turned out to be damaged.
    bool hasFoundDamage(const CapturedFrame &jpeg) const;

    // Lets go of the frame asked for last.
    void release();

private:
    std::optional<PicturePlanes> readRaw(const FramePtr &frame, const QRect &part);
    bool decode(const FramePtr &frame, int denominator);

    FramePtr m_frame;
    std::shared_ptr<MappedFrame> m_mapped;  // of a raw frame
    std::optional<PicturePlanes> m_decoded; // of a JPEG
    int m_denominator = 0;                  // at which it was decoded, or found damaged; 0 for not at all
    std::shared_ptr<PlaneMemory> m_memory;  // of both, null when not used
    std::shared_ptr<SparePlanes> m_spare;   // one for all copies
};
