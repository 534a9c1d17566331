#pragma once

#include "util/files/descriptor.h"

#include <QLockFile>
#include <QString>

#include <functional>
#include <memory>

class QLocalServer;
class QLocalSocket;

// A private folder whose lock one process at a time holds: the instance, which listens in it for others. GUI
// thread only.
class InstanceFolder
{
public:
    // The folder must exist.
    explicit InstanceFolder(const QString &path);
    ~InstanceFolder();

    // False when another process holds it. True also where no lock can be made.
    bool lock();
    void unlock();

    // Takes connections of this user's own processes alone, each handed to take, which does not own it. Only
    // while it is locked. False when that is not possible.
    bool listen(std::function<void(QLocalSocket *)> take);

    // Where its holder listens.
    QString socket() const;

private:
    bool isLockForeign() const;

    Descriptor m_folder;
    const QString m_lockPath;
    QLockFile m_lock;
    std::unique_ptr<QLocalServer> m_server; // gone before the lock is
};
