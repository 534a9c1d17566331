#include "util/filemove.h"

#include "util/wholefile.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace
{

class Descriptor
{
public:
    explicit Descriptor(int descriptor) : m_descriptor(descriptor) {}
    ~Descriptor()
    {
        if (m_descriptor >= 0)
            close(m_descriptor);
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    operator int() const { return m_descriptor; }

private:
    int m_descriptor;
};

bool writeAll(int to, const char *data, ssize_t length)
{
    while (length > 0) {
        const ssize_t written = write(to, data, static_cast<size_t>(length));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        data += written;
        length -= written;
    }
    return true;
}

using StopTest = std::function<bool()>;

bool copyByBlocks(int from, int to, const StopTest &isToStop)
{
    constexpr size_t blockBytes = size_t{256} * 1024; // past this, larger blocks gain nothing
    std::vector<char> block(blockBytes);
    while (!isToStop()) {
        const ssize_t length = read(from, block.data(), block.size());
        if (length == 0)
            return true;
        if (length < 0 && errno == EINTR)
            continue;
        if (length < 0 || !writeAll(to, block.data(), length))
            return false;
    }
    return false;
}

// The kernel copies where it can, between most file systems of one kind, and may even share the blocks. What
// it leaves, up to all of the file, goes by blocks, and so does finding out why.
bool copyContents(int from, int to, const StopTest &isToStop)
{
    // A fraction of a second even on a slow disk, after which stopping is possible.
    constexpr size_t kernelStepBytes = size_t{16} * 1024 * 1024;
    while (!isToStop() && copy_file_range(from, nullptr, to, nullptr, kernelStepBytes, 0) > 0) {
    }
    return copyByBlocks(from, to, isToStop);
}

enum class Copy {
    Plain,
    // Keeps the time, and is on the disk before its name is: what has a name there counts as saved.
    Lasting
};

bool copyFile(const QString &source, const QString &target, Copy kind, const StopTest &isToStop)
{
    // Without waiting, as opening a named pipe would.
    const Descriptor from(open(QFile::encodeName(source), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status = {};
    if (from < 0 || fstat(from, &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    WholeFile file(target, status.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO));
    if (file.descriptor() < 0 || !copyContents(from, file.descriptor(), isToStop))
        return false;
    if (kind == Copy::Plain)
        return file.publish();
    const timespec times[] = {status.st_atim, status.st_mtim};
    futimens(file.descriptor(), times); // a file system that keeps no times keeps the capture all the same
    return fdatasync(file.descriptor()) == 0 && file.publish();
}

} // namespace

bool copyFileWhole(const QString &source, const QString &target, const StopTest &isToStop)
{
    return copyFile(source, target, Copy::Plain, isToStop);
}

bool placeFileWhole(const QString &source, const QString &target)
{
    const QFileInfo info(source);
    if (!info.isFile() || info.isSymLink())
        return false;
    if (link(QFile::encodeName(source), QFile::encodeName(target)) == 0)
        return true;
    if (errno == EEXIST)
        return false;
    return copyFile(source, target, Copy::Lasting, [] { return false; });
}

bool syncFolder(const QString &path)
{
    const Descriptor folder(open(QFile::encodeName(path), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // Some file systems cannot sync a folder; nothing better can be done there.
    return folder >= 0 && (fsync(folder) == 0 || errno == EINVAL);
}
