#include "app/instancefolder.h"

#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

InstanceFolder::InstanceFolder(const QString &path)
    : m_folder(open(QFile::encodeName(path), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC)),
      // Beside the folder: a file that is held open would keep its disk from being unmounted.
      m_lockPath(path + ".lock"), m_lock(m_lockPath)
{
}

InstanceFolder::~InstanceFolder() = default;

bool InstanceFolder::lock()
{
    // However long a lesson lasts: only a holder that has ended leaves a lock to be taken over. Whoever was
    // killed just as it made the lock has left one without a holder's name.
    qint64 process = 0;
    QString host;
    QString program;
    constexpr int writingMs = 2000;
    m_lock.setStaleLockTime(m_lock.getLockInfo(&process, &host, &program) ? 0 : writingMs);
    return m_lock.tryLock() || m_lock.error() != QLockFile::LockFailedError || isLockForeign();
}

// There other users may have laid one, which would never go.
bool InstanceFolder::isLockForeign() const
{
    struct stat status = {};
    return lstat(QFile::encodeName(m_lockPath), &status) == 0 && status.st_uid != geteuid();
}

void InstanceFolder::unlock()
{
    m_lock.unlock();
}

bool InstanceFolder::listen(std::function<void(QLocalSocket *)> take)
{
    auto server = std::make_unique<QLocalServer>();
    server->setSocketOptions(QLocalServer::UserAccessOption);
    // With the lock in hand, a socket that is there is the leftover of an instance that was killed.
    QLocalServer::removeServer(socket());
    if (!server->listen(socket()))
        return false;
    QObject::connect(server.get(), &QLocalServer::newConnection, server.get(),
                     [server = server.get(), take = std::move(take)] {
                         while (QLocalSocket *sender = server->nextPendingConnection())
                             take(sender);
                     });
    m_server = std::move(server);
    return true;
}

// However long the folder's own path is: the address of a socket has room for hardly a hundred letters.
QString InstanceFolder::socket() const
{
    return QString("/proc/self/fd/%1/.instance").arg(int(m_folder));
}
