#include "util/files/freespace.h"

#include <QFile>

#include <limits>

static bool readStatus(const QString &path, struct statvfs *status)
{
    return statvfs(QFile::encodeName(path), status) == 0;
}

std::optional<qint64> freeBytes(const QString &path)
{
    struct statvfs status = {};
    if (!readStatus(path, &status))
        return {};
    qint64 bytes = 0;
    // Some file systems claim more than can be counted.
    if (__builtin_mul_overflow(status.f_bavail, status.f_frsize, &bytes))
        return std::numeric_limits<qint64>::max();
    return bytes;
}

bool enoughFreeSpace(unsigned long blockSize, fsblkcnt_t availableBlocks)
{
    constexpr long double bytesPerMiB = 1048576.0L;
    return static_cast<long double>(blockSize) * availableBlocks / bytesPerMiB > minimumFreeMiB;
}

bool enoughFreeSpace(qint64 bytes)
{
    return bytes > 0 && enoughFreeSpace(1, fsblkcnt_t(bytes));
}

bool enoughFreeSpaceAt(const QString &path)
{
    struct statvfs status = {};
    return readStatus(path, &status) && enoughFreeSpace(status.f_bsize, status.f_bavail);
}
