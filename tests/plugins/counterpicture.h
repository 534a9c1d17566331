// The picture that the content "counter" shows: the moment of its capture as black and white blocks, with a
// checksum. Inside a grey rim one block wide, the top row is a fixed pattern, four rows are the time and one
// the checksum. Blocks stay readable when the picture is scaled to a quarter, compressed or scaled without
// smoothing; a mirrored or cut picture is not read.
#pragma once

#include <array>
#include <cstdint>

namespace counterpicture
{

constexpr int columns = 16;
constexpr int rows = 6;
constexpr int gridColumns = columns + 2;
constexpr int gridRows = rows + 2;

// A row of blocks is one word, most significant bit at the left; a set bit is white.
using Words = std::array<uint16_t, rows>;

// Both colours in the first and the last column, and no mirror image of itself.
constexpr uint16_t topRow = 0xb2c4;

inline bool isSet(uint16_t word, int column)
{
    return word >> (columns - 1 - column) & 1;
}

inline Words wordsOf(int64_t capturedUs)
{
    const auto time = uint64_t(capturedUs);
    Words words = {topRow, uint16_t(time >> 48), uint16_t(time >> 32), uint16_t(time >> 16), uint16_t(time),
                   0};
    // A large odd factor carries each bit of the time into the checksum.
    words[rows - 1] = uint16_t(time * 0x9e3779b97f4a7c15U >> 48);
    return words;
}

} // namespace counterpicture

// luma(x, y) gives the brightness, 0 to 255, of one pixel of the camera's whole picture, which lies at 0, 0
// and has the given size. The moment of capture in microseconds of CLOCK_MONOTONIC, as
// std::chrono::steady_clock tells it; -1 when the picture is not a counter picture or was damaged.
template<typename Luma> int64_t readCounter(const Luma &luma, int width, int height)
{
    using namespace counterpicture;
    constexpr int threshold = 128;
    Words words = {};
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const int x = (2 * column + 3) * width / (2 * gridColumns);
            const int y = (2 * row + 3) * height / (2 * gridRows);
            words[row] = uint16_t(words[row] << 1 | (luma(x, y) > threshold));
        }
    }
    const auto time =
        int64_t(uint64_t(words[1]) << 48 | uint64_t(words[2]) << 32 | uint64_t(words[3]) << 16 | words[4]);
    return words == wordsOf(time) ? time : -1;
}
