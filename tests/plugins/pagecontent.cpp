#include "tests/plugins/pagecontent.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <random>

namespace
{

// Enough that the noise is seen to move, few enough to keep at 3264x2448.
constexpr int noiseVariants = 4;
// Standard deviation of the brightness of a small sensor in a lit room.
constexpr double noiseDeviation = 2.0;
// Brightness that paper keeps at the edges of the lamp's light.
constexpr double edgeLight = 0.82;
// Keeps the brightness clear of overflow by noise, so that adding it needs no clamping.
constexpr int noiseLimit = 12;

constexpr uint32_t deskColour = 0x6b5340;
constexpr uint32_t paperColour = 0xefece2;
constexpr uint32_t inkColour = 0x2a2c33;
constexpr uint32_t headingColour = 0x23508c;

// Letters are strokes on a grid of 3 by 5: at a camera's sharpness that looks like print.
void drawLetter(Picture *picture, int x, int y, int unit, unsigned shape, Yuv ink)
{
    for (int cell = 0; cell < 15; ++cell) {
        if (shape >> cell & 1)
            picture->fillRect(x + cell % 3 * unit, y + cell / 3 * unit, unit, unit, ink);
    }
}

void drawTextLine(Picture *picture, int left, int right, int y, int unit, Yuv ink, std::minstd_rand *random)
{
    int x = left;
    while (x < right - 4 * unit) {
        const unsigned letters = 2 + (*random)() % 8;
        for (unsigned letter = 0; letter < letters && x < right - 4 * unit; ++letter, x += 4 * unit)
            drawLetter(picture, x, y, unit, (*random)() >> 8 | 0x2002, ink);
        x += 3 * unit;
    }
}

void drawBarChart(Picture *picture, int x, int y, int width, int height)
{
    constexpr std::array<uint32_t, 5> colours = {0xc0392b, 0xe0a030, 0x3f8f4f, 0x2f6fb0, 0x7b4fa0};
    const int step = width / int(colours.size());
    for (size_t bar = 0; bar < colours.size(); ++bar) {
        const int barHeight = height * int(3 + bar * 7 % 5) / 8;
        picture->fillRect(x + int(bar) * step, y + height - barHeight, step * 2 / 3, barHeight,
                          picture->colour(colours[bar]));
    }
    picture->fillRect(x, y + height, width, std::max(1, height / 60), picture->colour(inkColour));
}

// A lens never draws a hard edge.
void soften(uint8_t *row, int width)
{
    int before = row[0];
    for (int x = 1; x + 1 < width; ++x) {
        const int here = row[x];
        row[x] = static_cast<uint8_t>((before + 2 * here + row[x + 1]) / 4);
        before = here;
    }
}

// Brightest in the middle, evenly less towards the edges.
void light(uint8_t *row, int y, int width, int height)
{
    const double fromMiddle = 2.0 * y / height - 1;
    for (int x = 0; x < width; ++x) {
        const double across = 2.0 * x / width - 1;
        const double factor = 1 - (1 - edgeLight) * (fromMiddle * fromMiddle + across * across) / 2;
        row[x] = static_cast<uint8_t>(std::clamp(row[x] * factor, double(noiseLimit), 255.0 - noiseLimit));
    }
}

const std::vector<int8_t> &noise()
{
    static const std::vector<int8_t> values = [] {
        std::mt19937 random(1);
        std::normal_distribution<double> distribution(0, noiseDeviation);
        std::vector<int8_t> drawn(1U << 18);
        for (auto &value : drawn)
            value = static_cast<int8_t>(
                std::clamp(distribution(random), -double(noiseLimit), double(noiseLimit)));
        return drawn;
    }();
    return values;
}

} // namespace

int PageContent::variant(const Moment &moment) const
{
    return int(moment.frame % noiseVariants);
}

void PageContent::draw(Picture *picture, const Moment &moment)
{
    if (!m_page) {
        m_page = std::make_unique<Picture>(picture->width(), picture->height(), picture->info().colorimetry);
        drawPage(m_page.get());
    }
    const int width = picture->width();
    std::minstd_rand random(1 + variant(moment));
    for (int row = 0; row < picture->height(); ++row) {
        const uint8_t *clean = m_page->planeRow(0, row);
        uint8_t *noisy = picture->planeRow(0, row);
        const int8_t *grain = noise().data() + random() % (noise().size() - size_t(width));
        for (int x = 0; x < width; ++x)
            noisy[x] = static_cast<uint8_t>(clean[x] + grain[x]);
        for (int plane : {1, 2})
            std::memcpy(picture->planeRow(plane, row), m_page->planeRow(plane, row), size_t(width + 1) / 2);
    }
}

void PageContent::drawPage(Picture *picture)
{
    const int width = picture->width();
    const int height = picture->height();
    const int margin = height / 16;
    const int left = width / 5;
    const int right = width - left;
    const int unit = std::max(1, height / 360);
    const Yuv ink = picture->colour(inkColour);
    picture->fill(picture->colour(deskColour));
    picture->fillRect(left - margin, margin / 2, right - left + 2 * margin, height - margin,
                      picture->colour(paperColour));
    std::minstd_rand random(7);
    drawTextLine(picture, left, (left + right) / 2, margin * 3 / 2, 2 * unit, picture->colour(headingColour),
                 &random);
    const int chartTop = height * 11 / 20;
    const int chartBottom = height * 16 / 20;
    for (int y = margin * 3; y < height - 2 * margin; y += 10 * unit) {
        const bool besideChart = y > chartTop - 10 * unit && y < chartBottom + 10 * unit;
        drawTextLine(picture, left, besideChart ? (left + right) / 2 : right, y, unit, ink, &random);
    }
    drawBarChart(picture, (left + right) / 2 + margin, chartTop, (right - left) / 2 - margin,
                 chartBottom - chartTop);
    for (int row = 0; row < height; ++row) {
        soften(picture->planeRow(0, row), width);
        light(picture->planeRow(0, row), row, width, height);
    }
}
