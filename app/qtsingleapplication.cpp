#include "app/qtsingleapplication.h"

#include <QDataStream>
#include <QDeadlineTimer>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QStandardPaths>
#include <QThread>

#include <unistd.h>
#include <utility>

namespace
{

constexpr auto streamVersion = QDataStream::Qt_5_0; // instances of two builds must understand each other
constexpr qint64 maximumMessageBytes = 65536;       // above any message: no sender may fill the memory
constexpr char taken = '+';                         // the answer to a message
constexpr unsigned long retryMs = 20;               // between two looks for an instance that is just starting

int remaining(const QDeadlineTimer &deadline)
{
    return static_cast<int>(deadline.remainingTime());
}

} // namespace

// The runtime folder is one that only this user can write to; the name tells the users apart anyway.
QtSingleApplication::QtSingleApplication(const QString &appId, int &argc, char **argv)
    : QApplication(argc, argv), m_name(appId + "-" + QString::number(geteuid())), m_fallback(QDir::tempPath())
{
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    useFolder(runtime.isEmpty() ? std::exchange(m_fallback, QString()) : runtime);
    becomeInstance();
}

QtSingleApplication::~QtSingleApplication() = default;

void QtSingleApplication::useFolder(const QString &folder)
{
    m_path = folder + "/" + m_name;
    m_lock = std::make_unique<QLockFile>(m_path + ".lock");
    // However long a lesson lasts: only a holder that has ended leaves a lock to be taken over.
    m_lock->setStaleLockTime(0);
}

// Every instance comes to the same folder, as what is wrong with the first is so for all of them.
bool QtSingleApplication::becomeInstance()
{
    if (m_server)
        return true;
    const bool isLocked = m_lock->tryLock();
    if (!isLocked && m_lock->error() == QLockFile::LockFailedError)
        return false;
    if (isLocked && listen())
        return true;
    if (m_fallback.isNull())
        return true;
    useFolder(std::exchange(m_fallback, QString()));
    return becomeInstance();
}

// With the lock in hand, a socket that is there is the leftover of an instance that was killed.
bool QtSingleApplication::listen()
{
    auto server = std::make_unique<QLocalServer>();
    server->setSocketOptions(QLocalServer::UserAccessOption);
    QLocalServer::removeServer(m_path + ".socket");
    if (!server->listen(m_path + ".socket"))
        return false;
    connect(server.get(), &QLocalServer::newConnection, this, &QtSingleApplication::acceptSender);
    m_server = std::move(server);
    return true;
}

bool QtSingleApplication::isRunning()
{
    return !becomeInstance();
}

bool QtSingleApplication::sendMessage(const QString &message, int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    // The instance may have the lock and not listen yet, or end while it is asked: then look again.
    while (!becomeInstance()) {
        if (deliver(message, deadline))
            return true;
        if (deadline.hasExpired())
            return false;
        QThread::msleep(retryMs);
    }
    return false;
}

bool QtSingleApplication::deliver(const QString &message, const QDeadlineTimer &deadline) const
{
    QLocalSocket socket;
    socket.connectToServer(m_path + ".socket");
    if (!socket.waitForConnected(remaining(deadline)))
        return false;
    QDataStream stream(&socket);
    stream.setVersion(streamVersion);
    stream << message;
    while (socket.bytesToWrite() > 0) {
        if (!socket.waitForBytesWritten(remaining(deadline)))
            return false;
    }
    // Written is not taken: an instance that hangs would never read it.
    char answer = 0;
    return socket.waitForReadyRead(remaining(deadline)) && socket.getChar(&answer) && answer == taken;
}

void QtSingleApplication::acceptSender()
{
    while (QLocalSocket *sender = m_server->nextPendingConnection()) {
        sender->setReadBufferSize(maximumMessageBytes);
        connect(sender, &QLocalSocket::disconnected, sender, &QObject::deleteLater);
        connect(sender, &QLocalSocket::readyRead, this, [this, sender] { takeMessage(sender); });
        takeMessage(sender); // it may be there already
    }
}

void QtSingleApplication::takeMessage(QLocalSocket *sender)
{
    QDataStream stream(sender);
    stream.setVersion(streamVersion);
    stream.startTransaction();
    QString message;
    stream >> message;
    if (!stream.commitTransaction())
        return; // not whole yet
    sender->putChar(taken);
    sender->flush();
    emit messageReceived(message);
}
