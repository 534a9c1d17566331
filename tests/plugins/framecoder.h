// Turns drawn pictures into what the camera's format wants.
#pragma once

#include "tests/plugins/picture.h"

#include <memory>

class FrameCoder
{
public:
    virtual ~FrameCoder() = default;
    // The colours in which to draw for this coder.
    virtual GstVideoColorimetry colorimetry() const = 0;
    // Each frame stands alone, so that frames may be repeated and left out. Transfer full; nullptr on
    // failure.
    virtual GstBuffer *encode(Picture *picture) = 0;

    // nullptr when the format is not known.
    static std::unique_ptr<FrameCoder> make(const GstCaps *fixedCaps);
};
