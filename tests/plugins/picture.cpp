#include "tests/plugins/picture.h"
#include "tests/plugins/counterpicture.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace
{

constexpr uint32_t black = 0x000000;
constexpr uint32_t white = 0xffffff;
constexpr uint32_t grey = 0x808080;

// White in the first frame of each second of the monotonic clock, when the microphones beep.
bool isFlash(const Moment &moment)
{
    constexpr int64_t second = 1'000'000'000;
    return moment.captured / second != (moment.captured - moment.period) / second;
}

void drawCounter(Picture *picture, const Moment &moment)
{
    using namespace counterpicture;
    const auto x = [picture](int column) { return (column + 1) * picture->width / gridColumns; };
    const auto y = [picture](int row) { return (row + 1) * picture->height / gridRows; };
    const Words words = wordsOf(moment.captured / 1000);
    picture->fill(0, 0, picture->width, picture->height, grey);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            picture->fill(x(column), y(row), x(column + 1) - x(column), y(row + 1) - y(row),
                          isSet(words[row], column) ? white : black);
    }
}

// A colour in each quarter, a white square with a black one in it on the centre, and a white letter F in the
// first quarter, which tells a mirrored picture.
void drawQuarters(Picture *picture)
{
    const int x = picture->width / 2;
    const int y = picture->height / 2;
    const auto square = [&](int half, uint32_t rgb) {
        picture->fill(x - half, y - half, 2 * half, 2 * half, rgb);
    };
    picture->fill(0, 0, x, y, 0xc02020);
    picture->fill(x, 0, x, y, 0x20a020);
    picture->fill(0, y, x, y, 0x2020c0);
    picture->fill(x, y, x, y, 0xe0c020);
    square(picture->height / 20, white);
    square(picture->height / 60, black);
    const int unit = picture->height / 24;
    picture->fill(x / 2 - unit, y / 2 - 2 * unit, unit, 5 * unit, white);
    picture->fill(x / 2 - unit, y / 2 - 2 * unit, 3 * unit, unit, white);
    picture->fill(x / 2 - unit, y / 2, 2 * unit, unit, white);
}

void drawRows(Picture *picture)
{
    picture->fill(0, 0, picture->width, picture->height, 0xc02020);
    for (int y = 1; y < picture->height; y += 2)
        picture->fill(0, y, picture->width, 1, 0x2020c0);
}

// A lens never draws a hard edge: each pixel is mixed with the ones beside it, two bits of a colour being
// lost.
void soften(Picture *picture)
{
    const auto quarter = [](uint32_t rgb) { return rgb >> 2 & 0x3f3f3f; };
    for (int pass = 0; pass < 2; ++pass) {
        const std::vector<uint32_t> sharp = picture->pixels;
        const size_t step = pass == 0 ? 1 : size_t(picture->width);
        for (size_t i = step; i + step < sharp.size(); ++i)
            picture->pixels[i] = quarter(sharp[i - step]) + 2 * quarter(sharp[i]) + quarter(sharp[i + step]);
    }
}

// A sheet of print on a desk, with the noise of a small sensor in a lit room.
void drawPage(Picture *picture, int variant)
{
    constexpr double noiseDeviation = 2.0;
    constexpr int noiseLimit = 12;
    const int unit = std::max(1, picture->height / 360);
    const int margin = picture->height / 16;
    std::minstd_rand shapes(7);
    picture->fill(0, 0, picture->width, picture->height, 0x6b5340);
    picture->fill(picture->width / 6, margin / 2, picture->width * 2 / 3, picture->height - margin, 0xefece2);
    for (int y = 2 * margin; y < picture->height - 2 * margin; y += 10 * unit) {
        // Letters are strokes on a grid of 3 by 5: at a camera's sharpness that looks like print.
        for (int x = picture->width / 5; x < picture->width * 4 / 5; x += 4 * unit) {
            const unsigned shape = shapes() % 8 ? unsigned(shapes()) >> 8 : 0;
            for (int cell = 0; cell < 15; ++cell) {
                if (shape >> cell & 1)
                    picture->fill(x + cell % 3 * unit, y + cell / 3 * unit, unit, unit, 0x2a2c33);
            }
        }
    }
    soften(picture);
    std::minstd_rand random(1 + variant);
    std::normal_distribution<double> noise(0, noiseDeviation);
    for (uint32_t &pixel : picture->pixels) {
        const int grain = std::clamp(int(std::lround(noise(random))), -noiseLimit, noiseLimit);
        // Ink and paper are clear of overflow by the noise.
        pixel += uint32_t(grain * 0x010101);
    }
}

} // namespace

void Picture::fill(int x, int y, int fillWidth, int fillHeight, uint32_t rgb)
{
    const int left = std::clamp(x, 0, width);
    const int right = std::clamp(x + fillWidth, left, width);
    for (int row = std::max(y, 0); row < std::min(y + fillHeight, height); ++row)
        std::fill_n(pixels.begin() + ptrdiff_t(row) * width + left, right - left, rgb);
}

int pictureVariant(const std::string &content, const Moment &moment)
{
    if (content == "counter")
        return alwaysNew;
    if (content == "flash")
        return isFlash(moment);
    return content == "page" ? int(moment.frame % noiseVariants) : 0;
}

void drawPicture(const std::string &content, const Moment &moment, Picture *picture)
{
    if (content == "counter")
        drawCounter(picture, moment);
    else if (content == "quarters")
        drawQuarters(picture);
    else if (content == "rows")
        drawRows(picture);
    else if (content == "page")
        drawPage(picture, pictureVariant(content, moment));
    else if (content == "flash")
        picture->fill(0, 0, picture->width, picture->height, isFlash(moment) ? white : black);
    else
        picture->fill(0, 0, picture->width, picture->height, uint32_t(std::stoul(content, nullptr, 16)));
}
