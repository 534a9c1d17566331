// What a camera shows.
#pragma once

#include "tests/plugins/controlfile.h"
#include "tests/plugins/picture.h"

#include <memory>

// One frame's place in time.
struct Moment {
    uint32_t frame;
    int64_t captured; // CLOCK_MONOTONIC, nanoseconds
    int64_t period;   // nanoseconds
};

class Content
{
public:
    // Frames of one variant look alike, so that they are drawn and compressed once.
    static constexpr int alwaysNew = -1;

    virtual ~Content() = default;
    virtual int variant(const Moment &moment) const = 0;
    virtual void draw(Picture *picture, const Moment &moment) = 0;

    // Never nullptr: an unknown word is warned of and gives a page.
    static std::unique_ptr<Content> make(const DeviceSettings &camera);
};
