#include "app/instancefolder.h"

#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <utility>

InstanceFolder::InstanceFolder(const QString &path)
    : m_folder(open(QFile::encodeName(path), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC))
{
}

InstanceFolder::~InstanceFolder() = default;

bool InstanceFolder::lock()
{
    return flock(m_folder, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

void InstanceFolder::unlock()
{
    flock(m_folder, LOCK_UN);
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
