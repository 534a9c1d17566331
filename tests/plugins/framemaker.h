// The frames of one running camera: content, format, what is kept for the next time and what is damaged.
#pragma once

#include "tests/plugins/content.h"
#include "tests/plugins/framecoder.h"

#include <map>

class FrameMaker
{
public:
    // Draws a first frame, so that none is late when the camera runs. nullptr when the format is not known.
    static std::unique_ptr<FrameMaker> make(const DeviceSettings &camera, const GstCaps *fixedCaps);
    ~FrameMaker();
    FrameMaker(const FrameMaker &) = delete;
    FrameMaker &operator=(const FrameMaker &) = delete;

    // Transfer full; nullptr on failure.
    GstBuffer *frame(const Moment &moment, const DamagedFrames &damaged);

private:
    FrameMaker(std::unique_ptr<Content> content, std::unique_ptr<FrameCoder> coder, int width, int height);
    GstBuffer *wholeFrame(const Moment &moment);

    std::unique_ptr<Content> m_content;
    std::unique_ptr<FrameCoder> m_coder;
    Picture m_picture;
    std::map<int, GstBuffer *> m_kept; // owned, by variant
    bool m_isJpeg = false;
    unsigned m_damagedCount = 0;
};
