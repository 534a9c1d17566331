#include "util/files/filemove.h"

#include "util/files/descriptor.h"
#include "util/files/filelog.h"
#include "util/files/wholefile.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace
{

// How a file is copied.
struct Copying {
    std::function<bool()> isToStop = [] { return false; };
    bool isLasting = false; // keeps the time, and goes to the disk while it is being copied
};

void startWriting(int file)
{
    sync_file_range(file, 0, 0, SYNC_FILE_RANGE_WRITE);
}

bool copyByBlocks(int from, WholeFile *to, const Copying &copying)
{
    constexpr size_t blockBytes = size_t{256} * 1024; // past this, larger blocks gain nothing
    constexpr int blocksBetweenWrites = 32;           // enough to keep a disk busy
    std::vector<char> block(blockBytes);
    for (int count = 1; !copying.isToStop(); ++count) {
        const ssize_t length = read(from, block.data(), block.size());
        if (length == 0)
            return true;
        if (length < 0 && errno == EINTR)
            continue;
        if (length < 0 || !to->append(block.data(), size_t(length)))
            return false;
        if (copying.isLasting && count % blocksBetweenWrites == 0)
            startWriting(to->descriptor());
    }
    return false;
}

// The kernel copies where it can, between most file systems of one kind, and may even share the blocks. What
// it leaves, up to all of the file, goes by blocks, and so does finding out why.
bool copyContents(int from, WholeFile *to, const Copying &copying)
{
    // A fraction of a second even on a slow disk, after which stopping is possible.
    constexpr size_t kernelStepBytes = size_t{16} * 1024 * 1024;
    while (!copying.isToStop() &&
           copy_file_range(from, nullptr, to->descriptor(), nullptr, kernelStepBytes, 0) > 0) {
        if (copying.isLasting)
            startWriting(to->descriptor());
    }
    return copyByBlocks(from, to, copying);
}

// Without waiting, as opening a named pipe would. Not a file that is usable when it is no plain one.
Descriptor openPlainFile(const QString &path, struct stat *status)
{
    Descriptor file(open(QFile::encodeName(path), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (file < 0 || fstat(file, status) != 0)
        return Descriptor(-1);
    if (!S_ISREG(status->st_mode)) {
        errno = EINVAL;
        return Descriptor(-1);
    }
    return file;
}

// The whole copy, not yet under its name; nullptr on failure.
std::unique_ptr<WholeFile> copied(const QString &source, const QString &target, const Copying &copying)
{
    struct stat status = {};
    const Descriptor from = openPlainFile(source, &status);
    if (from < 0)
        return nullptr;
    auto file = std::make_unique<WholeFile>(target, status.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO));
    if (file->descriptor() < 0 || !copyContents(from, file.get(), copying))
        return nullptr;
    if (copying.isLasting) {
        const timespec times[] = {status.st_atim, status.st_mtim};
        futimens(file->descriptor(),
                 times); // a file system that keeps no times keeps the capture all the same
        startWriting(file->descriptor());
    }
    return file;
}

std::unique_ptr<WholeFile> lastingCopy(const QString &source, const QString &target,
                                       const std::function<void()> &giveSign)
{
    Copying copying;
    copying.isToStop = [&giveSign] {
        giveSign();
        return false;
    };
    copying.isLasting = true;
    return copied(source, target, copying);
}

bool isOnFileSystemOf(const QString &folder, const QString &file)
{
    struct stat one = {};
    struct stat other = {};
    return stat(QFile::encodeName(folder), &one) == 0 && lstat(QFile::encodeName(file), &other) == 0 &&
           one.st_dev == other.st_dev;
}

// Piece by piece, with a sign after each: a slow stick takes minutes for a movie.
bool isOnDisk(int file, const std::function<void()> &giveSign)
{
    constexpr off_t pieceBytes = off_t{8} << 20;
    struct stat status = {};
    const off_t size = fstat(file, &status) == 0 ? status.st_size : 0;
    for (off_t piece = 0; piece < size; piece += pieceBytes) {
        sync_file_range(file, piece, pieceBytes,
                        SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE | SYNC_FILE_RANGE_WAIT_AFTER);
        giveSign();
    }
    // Some file systems keep nothing that could be waited for.
    return fdatasync(file) == 0 || errno == EINVAL;
}

} // namespace

bool copyFileWhole(const QString &source, const QString &target, const std::function<bool()> &isToStop)
{
    Copying copying;
    copying.isToStop = isToStop;
    const auto file = copied(source, target, copying);
    if (file && file->publish())
        return true;
    if (!isToStop())
        noteFileFault("copy", target);
    return false;
}

FilePlacement::FilePlacement(const QString &source, const QString &target, std::function<void()> giveSign)
    : m_source(source), m_target(target), m_giveSign(std::move(giveSign))
{
    if (!isOnFileSystemOf(QFileInfo(target).absolutePath(), source))
        m_copy = lastingCopy(source, target, m_giveSign);
}

FilePlacement::~FilePlacement() = default;

bool FilePlacement::finish()
{
    if (!m_copy) {
        if (giveSecondName())
            return true;
        if (errno == EEXIST) {
            noteFileFault("save", m_target);
            return false;
        }
        // Not every file system gives a file two names.
        m_copy = lastingCopy(m_source, m_target, m_giveSign);
    }
    if (m_copy && isOnDisk(m_copy->descriptor(), m_giveSign) && m_copy->publish())
        return true;
    noteFileFault("save", m_target);
    return false;
}

bool FilePlacement::giveSecondName() const
{
    const QByteArray source = QFile::encodeName(m_source);
    struct stat status = {};
    if (lstat(source, &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    const Descriptor file = openPlainFile(m_source, &status);
    // What may not be read can be moved all the same.
    const bool isSafe = file >= 0 ? isOnDisk(file, m_giveSign) : errno == EACCES;
    return isSafe && link(source, QFile::encodeName(m_target)) == 0;
}

bool syncFolder(const QString &path)
{
    const Descriptor folder(open(QFile::encodeName(path), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // Nor can one be synced that may be written to but not read.
    if (folder < 0)
        return errno == EACCES;
    // Some file systems cannot sync a folder; nothing better can be done there.
    return fsync(folder) == 0 || errno == EINVAL;
}
