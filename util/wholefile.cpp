#include "util/wholefile.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

static bool renameWithoutReplacing(const QByteArray &from, const QByteArray &to)
{
    if (renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    // A file system that cannot promise it, such as NFS: the look comes just before the renaming.
    struct stat taken = {};
    return lstat(to, &taken) != 0 && errno == ENOENT && rename(from, to) == 0;
}

WholeFile::WholeFile(const QString &target, mode_t mode) : m_target(QFile::encodeName(target))
{
    const QFileInfo info(target);
    const QByteArray folder = QFile::encodeName(info.absolutePath());
    m_descriptor = open(folder, O_TMPFILE | O_WRONLY | O_CLOEXEC, mode);
    if (m_descriptor >= 0)
        return;
    // Not every file system has files without a name (FAT and NFS have not): a hidden one serves there. One
    // that a crash left behind makes way.
    m_hiddenName = hiddenName();
    unlink(m_hiddenName);
    m_descriptor = open(m_hiddenName, O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, mode);
    if (m_descriptor < 0)
        m_hiddenName.clear();
}

WholeFile::~WholeFile()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
    if (!m_hiddenName.isEmpty())
        unlink(m_hiddenName);
}

QByteArray WholeFile::hiddenName() const
{
    const int nameStart = m_target.lastIndexOf('/') + 1;
    return m_target.left(nameStart) + "." + m_target.mid(nameStart) + ".part";
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
        const QByteArray hidden = hiddenName();
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
