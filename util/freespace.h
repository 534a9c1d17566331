#pragma once

#include <sys/statvfs.h>

// More than this must be free before anything is captured: a movie of the longest length and a few photos
// fit.
constexpr long double minimumFreeMiB = 300.0L;

// Whether availableBlocks of blockSize bytes each are more than the minimum; exactly the minimum is too
// little.
inline bool enoughFreeSpace(unsigned long blockSize, fsblkcnt_t availableBlocks)
{
    constexpr long double bytesPerMiB = 1048576.0L;
    return static_cast<long double>(blockSize) * availableBlocks / bytesPerMiB > minimumFreeMiB;
}
