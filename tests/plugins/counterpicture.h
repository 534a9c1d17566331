// The picture that the content "counter" shows: the frame's number and the moment of its capture as black and
// white blocks, with a checksum. The picture is a grid of 18 by 10 blocks with a grey rim one block wide;
// inside, the top row is a fixed pattern, two rows are the number, four the time and one the checksum. Blocks
// stay readable when the picture is scaled to a quarter, compressed or scaled without smoothing; a mirrored
// or cut picture is not read.
#pragma once

#include <array>
#include <cstdint>

struct CounterReading {
    uint32_t frame = 0; // counts the camera's frames; one that was dropped leaves a gap
    int64_t capturedUs =
        0; // CLOCK_MONOTONIC, as g_get_monotonic_time() and std::chrono::steady_clock tell it
};

namespace counterpicture
{

constexpr int gridColumns = 18;
constexpr int gridRows = 10;
constexpr int columns = 16;
constexpr int rows = 8;

// The middle of a row of blocks is read as one 16-bit word, most significant bit at the left, a set bit is
// white.
using Words = std::array<uint16_t, rows>;

// Both colours in the first and the last column, and no mirror image of itself.
constexpr uint16_t topRow = 0xb2c4;

// CRC-16/CCITT over the words before the last.
inline uint16_t checksum(const Words &words)
{
    uint16_t crc = 0xffff;
    for (int word = 0; word < rows - 1; ++word) {
        for (int bit = columns - 1; bit >= 0; --bit) {
            const bool flip = ((crc >> 15) ^ (words[word] >> bit)) & 1;
            crc = static_cast<uint16_t>(crc << 1 ^ (flip ? 0x1021 : 0));
        }
    }
    return crc;
}

inline Words words(const CounterReading &reading)
{
    const auto part = [](uint64_t value, int shift) { return static_cast<uint16_t>(value >> shift); };
    const auto time = static_cast<uint64_t>(reading.capturedUs);
    Words words = {topRow,         part(reading.frame, 16), part(reading.frame, 0), part(time, 48),
                   part(time, 32), part(time, 16),          part(time, 0),          0};
    words[rows - 1] = checksum(words);
    return words;
}

} // namespace counterpicture

// luma(x, y) gives the brightness, 0 to 255, of one pixel of the camera's whole picture, which lies at 0, 0
// and has the given size. False when the picture is not a counter picture or was damaged.
template<typename Luma> bool readCounter(const Luma &luma, int width, int height, CounterReading *reading)
{
    using namespace counterpicture;
    // The mean around a block's centre: a single pixel could be a compression artefact.
    const auto brightness = [&](int column, int row) {
        const int x = (2 * column + 3) * width / (2 * gridColumns);
        const int y = (2 * row + 3) * height / (2 * gridRows);
        int sum = 0;
        for (int dy = -1; dy <= 1; ++dy) {
            for (int dx = -1; dx <= 1; ++dx)
                sum += luma(x + dx, y + dy);
        }
        return sum / 9;
    };
    if (width < 4 * gridColumns || height < 4 * gridRows)
        return false;
    int whites = 0;
    int white = 0;
    int black = 0;
    for (int column = 0; column < columns; ++column) {
        const bool isWhite = topRow >> (columns - 1 - column) & 1;
        whites += isWhite;
        (isWhite ? white : black) += brightness(column, 0);
    }
    const int threshold = (white / whites + black / (columns - whites)) / 2;
    Words words = {};
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            words[row] = static_cast<uint16_t>(words[row] << 1 | (brightness(column, row) > threshold));
    }
    if (words[0] != topRow || words[rows - 1] != checksum(words))
        return false;
    reading->frame = uint32_t(words[1]) << 16 | words[2];
    reading->capturedUs = static_cast<int64_t>(uint64_t(words[3]) << 48 | uint64_t(words[4]) << 32 |
                                               uint64_t(words[5]) << 16 | words[6]);
    return true;
}
