#pragma once

#include "util/files/descriptor.h"

#include <QString>

#include <functional>
#include <memory>

class QLocalServer;
class QLocalSocket;

// A private folder in which one process at a time is the instance and listens for others. The folder itself
// is locked, which leaves nothing behind when the process ends, however it does, and is heeded by those who
// clear temporary folders. GUI thread only.
class InstanceFolder
{
public:
    // The folder must exist.
    explicit InstanceFolder(const QString &path);
    ~InstanceFolder();

    // False when another process holds it. True also where there are no locks.
    bool lock();
    void unlock();

    // Takes connections of this user's own processes alone, each handed to take, which does not own it. Only
    // while it is locked. False when that is not possible.
    bool listen(std::function<void(QLocalSocket *)> take);

    // Where its holder listens.
    QString socket() const;

private:
    Descriptor m_folder;
    std::unique_ptr<QLocalServer> m_server; // gone before the lock is
};
