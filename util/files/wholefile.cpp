#include "util/files/wholefile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

const QString hiddenPrefix = QStringLiteral(".orvane-");
const QString hiddenSuffix = QStringLiteral(".part");

// Short, so that it goes wherever the target's own name does.
QByteArray newHiddenName(const QString &folder)
{
    static std::atomic<int> count = 0;
    const QString number = QString::number(getpid()) + "-" + QString::number(++count);
    return QFile::encodeName(folder + "/" + hiddenPrefix + number + hiddenSuffix);
}

bool renameWithoutReplacing(const QByteArray &from, const QByteArray &to)
{
    if (renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    // A file system that cannot promise it, such as NFS: the look comes just before the renaming.
    struct stat taken = {};
    if (lstat(to, &taken) == 0)
        errno = EEXIST;
    return errno == ENOENT && rename(from, to) == 0;
}

} // namespace

void WholeFile::removeLeftOvers(const QString &folder)
{
    // Another program of this user's may be writing right now, from another machine.
    const QDateTime abandoned = QDateTime::currentDateTime().addSecs(-3600);
    const QDir parts(folder, hiddenPrefix + "*" + hiddenSuffix, QDir::Unsorted, QDir::Files | QDir::Hidden);
    for (const QFileInfo &part : parts.entryInfoList()) {
        if (part.lastModified() < abandoned)
            QFile::remove(part.filePath());
    }
}

WholeFile::WholeFile(const QString &target, mode_t mode) : m_target(QFile::encodeName(target))
{
    const QFileInfo info(target);
    const QString folder = info.absolutePath();
    m_descriptor = open(QFile::encodeName(folder), O_TMPFILE | O_WRONLY | O_CLOEXEC, mode);
    if (m_descriptor >= 0)
        return;
    // Not every file system has files without a name (FAT and NFS have not): a hidden one serves there. One
    // that a process of the same number left behind makes way.
    m_hiddenName = newHiddenName(folder);
    unlink(m_hiddenName);
    m_descriptor = open(m_hiddenName, O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, mode);
    if (m_descriptor >= 0)
        return;
    const int error = errno;
    m_hiddenName.clear();
    errno = error;
}

WholeFile::~WholeFile()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
    if (!m_hiddenName.isEmpty())
        unlink(m_hiddenName);
}

bool WholeFile::append(const char *bytes, size_t count)
{
    while (count > 0) {
        const ssize_t written = write(m_descriptor, bytes, count);
        if (written < 0 && errno == EINTR)
            continue;
        if (written == 0)
            errno = EIO;
        if (written <= 0)
            return false;
        bytes += written;
        count -= size_t(written);
    }
    return true;
}

bool WholeFile::linkNamelessAs(const QByteArray &name) const
{
    const QByteArray nameless = "/proc/self/fd/" + QByteArray::number(m_descriptor);
    return linkat(AT_FDCWD, nameless, AT_FDCWD, name, AT_SYMLINK_FOLLOW) == 0;
}

bool WholeFile::publish()
{
    if (m_hiddenName.isEmpty())
        return linkNamelessAs(m_target);
    if (!renameWithoutReplacing(m_hiddenName, m_target))
        return false;
    m_hiddenName.clear();
    return true;
}

bool WholeFile::publishReplacing()
{
    if (m_hiddenName.isEmpty()) {
        // Only renaming replaces, and only what has a name can be renamed.
        const QByteArray hidden = newHiddenName(QFileInfo(QFile::decodeName(m_target)).absolutePath());
        unlink(hidden);
        if (!linkNamelessAs(hidden))
            return false;
        m_hiddenName = hidden;
    }
    if (rename(m_hiddenName, m_target) != 0)
        return false;
    m_hiddenName.clear();
    return true;
}
