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
        Surface m_surface;
        GstVideoInfo m_rgb = {};
        GstVideoInfo m_yuv = {};
        std::unique_ptr<GstVideoConverter, FreeConverter> m_converter;
        std::vector<uint8_t> m_pixels;
        int m_x = 0;
        int m_y = 0;
    };
    void drawClock(std::time_t now);
    void drawPencil(double seconds);

    GstVideoInfo m_info;
    DeskScene m_scene;
    Surface m_still;
    std::vector<uint8_t> m_stillPixels;
    Patch m_clock;
    Patch m_pencil;
    std::time_t m_clockShows = -1;
    std::tm m_time = {};
};
