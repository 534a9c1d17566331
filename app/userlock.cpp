#include "app/userlock.h"

#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

UserLock::UserLock(const QString &path)
    // Closed on exec: the sound player and other commands must not hold the lock when this process has ended.
    : m_descriptor(
          open(QFile::encodeName(path), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR))
{
}

UserLock::~UserLock()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
}

bool UserLock::tryLock()
{
    if (!m_held)
        m_held = m_descriptor >= 0 && flock(m_descriptor, LOCK_EX | LOCK_NB) == 0;
    return m_held;
}
