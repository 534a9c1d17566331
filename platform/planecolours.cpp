#include "platform/planecolours.h"

#include <libyuv.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace
{

// libyuv's description of colours, and the one for the same with red and blue exchanged.
struct Constants {
    const libyuv::YuvConstants *straight;
    const libyuv::YuvConstants *exchanged;
};

// Which of those that libyuv knows are nearest: those of SMPTE 240M and of the FCC differ from them by less
// than is seen.
Constants constantsOf(const GstVideoColorimetry &colours)
{
    using namespace libyuv;
    const bool isFull = colours.range == GST_VIDEO_COLOR_RANGE_0_255;
    switch (colours.matrix) {
    case GST_VIDEO_COLOR_MATRIX_BT709:
    case GST_VIDEO_COLOR_MATRIX_SMPTE240M:
        return isFull ? Constants{&kYuvF709Constants, &kYvuF709Constants}
                      : Constants{&kYuvH709Constants, &kYvuH709Constants};
    case GST_VIDEO_COLOR_MATRIX_BT2020:
        return isFull ? Constants{&kYuvV2020Constants, &kYvuV2020Constants}
                      : Constants{&kYuv2020Constants, &kYvu2020Constants};
    default:
        return isFull ? Constants{&kYuvJPEGConstants, &kYvuJPEGConstants}
                      : Constants{&kYuvI601Constants, &kYvuI601Constants};
    }
}

// How planes of some colours become those of others: what becomes of the brightness, and what each of the two
// colours adds to each plane. In parts of 256 and of 128, so that all of it fits into 16 bits.
struct ColourChange {
    uint16_t brightness;
    int16_t black; // of the source; the target's is 16
    int16_t toBrightness[2];
    int16_t toFirst[2];
    int16_t toSecond[2];
};

int16_t in128ths(double factor)
{
    return static_cast<int16_t>(std::lround(factor * 128));
}

ColourChange changeOf(const GstVideoColorimetry &from, GstVideoColorMatrix toMatrix)
{
    double red = 0;
    double blue = 0;
    double toRed = 0;
    double toBlue = 0;
    gst_video_color_matrix_get_Kr_Kb(from.matrix, &red, &blue);
    gst_video_color_matrix_get_Kr_Kb(toMatrix, &toRed, &toBlue);
    const bool isFull = from.range == GST_VIDEO_COLOR_RANGE_0_255;
    // How much of the new brightness of a pixel lies in its colours, the green that they take away included.
    const double greenShare = (1 - toRed - toBlue) / (1 - red - blue);
    const double ofFirst = 2 * (1 - blue) * (toBlue - greenShare * blue);
    const double ofSecond = 2 * (1 - red) * (toRed - greenShare * red);
    const double toFirst = 2 * (1 - toBlue);
    const double toSecond = 2 * (1 - toRed);
    const double colour = 224.0 / (isFull ? 255 : 224);
    const double bright = 219.0 / (isFull ? 255 : 224);
    return {
        static_cast<uint16_t>(isFull ? 220 : 256),
        static_cast<int16_t>(isFull ? 0 : 16),
        {in128ths(bright * ofFirst), in128ths(bright * ofSecond)},
        {in128ths(colour * (2 * (1 - blue) - ofFirst) / toFirst), in128ths(-colour * ofSecond / toFirst)},
        {in128ths(-colour * ofFirst / toSecond), in128ths(colour * (2 * (1 - red) - ofSecond) / toSecond)}};
}

int16_t weighted(const int16_t (&factors)[2], int16_t first, int16_t second)
{
    return static_cast<int16_t>((factors[0] * first + factors[1] * second + 64) >> 7);
}

uint8_t inByte(int value)
{
    return static_cast<uint8_t>(std::clamp(value, 0, 255));
}

// Also tells, for each pixel of such a row, what its colour adds to its brightness.
void changeColourRow(const ColourChange &change, uint8_t *first, uint8_t *second, int width, int16_t *added)
{
    for (int x = 0; x < width; ++x) {
        const auto u = static_cast<int16_t>(first[x] - 128);
        const auto v = static_cast<int16_t>(second[x] - 128);
        const int16_t bright = weighted(change.toBrightness, u, v);
        *added++ = bright;
        *added++ = bright;
        first[x] = inByte(128 + weighted(change.toFirst, u, v));
        second[x] = inByte(128 + weighted(change.toSecond, u, v));
    }
}

void changeBrightRow(const ColourChange &change, uint8_t *row, int width, const int16_t *added)
{
    const auto offset = static_cast<int16_t>(16 - change.black);
    for (int x = 0; x < width; ++x) {
        const auto scaled = static_cast<uint16_t>(row[x] * change.brightness + 128) >> 8;
        row[x] = inByte(scaled + offset + added[x]);
    }
}

QSize halfWide(const QSize &size)
{
    return {halved(size).width(), size.height()};
}

} // namespace

bool toBgrx(const PicturePlanes &planes, uint8_t *out, int stride)
{
    const auto convert = [&](auto conversion) {
        return conversion(planes.data[0], planes.stride[0], planes.data[1], planes.stride[1], planes.data[2],
                          planes.stride[2], out, stride, constantsOf(planes.colours).straight,
                          planes.size.width(), planes.size.height()) == 0;
    };
    if (planes.colourSize == halved(planes.size))
        return convert(libyuv::I420ToARGBMatrix);
    if (planes.colourSize == halfWide(planes.size))
        return convert(libyuv::I422ToARGBMatrix);
    return planes.colourSize == planes.size && convert(libyuv::I444ToARGBMatrix);
}

// libyuv writes blue first; with its colours exchanged that is where red stands.
bool toRgb(const PicturePlanes &planes, uint8_t *out, int stride)
{
    const auto convert = [&](auto conversion, auto... filter) {
        return conversion(planes.data[0], planes.stride[0], planes.data[2], planes.stride[2], planes.data[1],
                          planes.stride[1], out, stride, constantsOf(planes.colours).exchanged,
                          planes.size.width(), planes.size.height(), filter...) == 0;
    };
    if (planes.colourSize == halved(planes.size))
        return convert(libyuv::I420ToRGB24MatrixFilter, libyuv::kFilterBilinear);
    if (planes.colourSize == halfWide(planes.size))
        return convert(libyuv::I422ToRGB24MatrixFilter, libyuv::kFilterLinear);
    return planes.colourSize == planes.size && convert(libyuv::I444ToRGB24Matrix);
}

void changeColours(const GstVideoColorimetry &from, GstVideoFrame *picture)
{
    const GstVideoColorimetry &to = picture->info.colorimetry;
    if (from.matrix == to.matrix && from.range != GST_VIDEO_COLOR_RANGE_0_255)
        return;
    const ColourChange change = changeOf(from, to.matrix);
    const auto row = [picture](int plane, int y) {
        return GST_VIDEO_FRAME_COMP_DATA(picture, plane) +
               ptrdiff_t(y) * GST_VIDEO_FRAME_COMP_STRIDE(picture, plane);
    };
    const int width = GST_VIDEO_FRAME_WIDTH(picture);
    const int height = GST_VIDEO_FRAME_HEIGHT(picture);
    std::vector<int16_t> added(size_t(width) + 1);
    for (int y = 0; y < height; ++y) {
        if (y % 2 == 0)
            changeColourRow(change, row(1, y / 2), row(2, y / 2), (width + 1) / 2, added.data());
        changeBrightRow(change, row(0, y), width, added.data());
    }
}
