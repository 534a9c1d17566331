// What the cameras of the control file show.
#pragma once

#include "tests/plugins/controlfile.h"

#include <vector>

// Pixels 0xRRGGBB, row by row.
struct Picture {
    // Parts outside the picture are left out.
    void fill(int x, int y, int fillWidth, int fillHeight, uint32_t rgb);

    int width;
    int height;
    std::vector<uint32_t> pixels;
};

// One frame's place in time.
struct Moment {
    int64_t frame;
    int64_t captured; // CLOCK_MONOTONIC, nanoseconds
    int64_t period;   // nanoseconds
};

// Frames of one variant look alike, so that they are drawn and compressed once.
constexpr int alwaysNew = -1;
// Enough that a camera's noise is seen to move.
constexpr int noiseVariants = 4;

int pictureVariant(const std::string &content, const Moment &moment);
void drawPicture(const std::string &content, const Moment &moment, Picture *picture);
