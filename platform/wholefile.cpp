#include "platform/wholefile.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

bool writeAll(int file, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = write(file, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes.remove_prefix(size_t(written));
    }
    return true;
}

bool writeParts(const QByteArray &path, const std::vector<std::string_view> &parts)
{
    const int file = open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0666);
    if (file < 0)
        return false;
    bool done = true;
    for (const std::string_view part : parts)
        done = done && writeAll(file, part);
    // Some file systems tell only here that the disk is full.
    return close(file) == 0 && done;
}

} // namespace

bool writeWholeFile(const QString &path, const std::vector<std::string_view> &parts)
{
    const QFileInfo target(path);
    const QByteArray hidden =
        QFile::encodeName(target.path() + QLatin1String("/.") + target.fileName() + QLatin1String(".part"));
    if (writeParts(hidden, parts) &&
        std::rename(hidden.constData(), QFile::encodeName(path).constData()) == 0)
        return true;
    unlink(hidden.constData());
    return false;
}
