// The desk scene as YUY2 frames. What stands still is drawn once; a frame costs a copy and two small patches.
#pragma once

#include "demo/deskscene.h"

#include <gst/video/video.h>
#include <vector>

class DeskPicture
{
public:
    // info: YUY2 of any size that holds the scene.
    explicit DeskPicture(const GstVideoInfo &info);
    // Transfer full. seconds moves the pencil.
    GstBuffer *frame(double seconds, std::time_t now);

private:
    struct FreeConverter {
        void operator()(GstVideoConverter *converter) const { gst_video_converter_free(converter); }
    };
    // A part of the picture, drawn anew and laid over a frame.
    class Patch
    {
    public:
        Patch(int width, int height, const GstVideoColorimetry &colorimetry);
        // A drawing context in the whole picture's pixels, of which the patch shows the part from x, y on.
        Cairo paint(int x, int y);
        void convert();
        void layOver(uint8_t *picture, const GstVideoInfo &info) const;

    private:
        Surface surface_;
        GstVideoInfo rgb_ = {};
        GstVideoInfo yuv_ = {};
        std::unique_ptr<GstVideoConverter, FreeConverter> converter_;
        std::vector<uint8_t> pixels_;
        int x_ = 0;
        int y_ = 0;
    };
    void drawClock(std::time_t now);
    void drawPencil(double seconds);

    GstVideoInfo info_;
    DeskScene scene_;
    Surface still_;
    std::vector<uint8_t> stillPixels_;
    Patch clock_;
    Patch pencil_;
    std::time_t clockShows_ = -1;
    std::tm time_ = {};
};
