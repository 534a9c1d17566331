#pragma once

#include <QString>

#include <optional>
#include <sys/statvfs.h>

// How much may still be written. Any thread.

// More than this must be free before a capture is begun; a long movie may take more.
constexpr long double minimumFreeMiB = 300.0L;

// The bytes that this user may still write where path, which must exist, lies; nothing when the system does
// not tell.
std::optional<qint64> freeBytes(const QString &path);

// Whether availableBlocks of blockSize bytes each are more than the minimum; exactly the minimum is too
// little.
bool enoughFreeSpace(unsigned long blockSize, fsblkcnt_t availableBlocks);
bool enoughFreeSpace(qint64 bytes);

// Whether more than the minimum is free where path lies, counted in blocks of the size that the file system
// works with best: on a few it is not the one that freeBytes() counts in. False when the system does not
// tell.
bool enoughFreeSpaceAt(const QString &path);
