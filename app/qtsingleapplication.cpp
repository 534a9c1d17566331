#include "app/qtsingleapplication.h"

#include <QDataStream>
#include <QDeadlineTimer>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>

#include <unistd.h>

namespace
{

constexpr auto kStreamVersion = QDataStream::Qt_5_0; // instances of two builds must understand each other
constexpr qint64 kMaximumMessageBytes = 65536;       // above any message: no sender may fill the memory
constexpr char kTaken = '+';                         // the answer to a message
constexpr unsigned long kRetryMs = 20; // between two looks for an instance that is just starting

// A place that only this user can write to, if there is one; the name tells the users apart anyway.
QString pathFor(const QString &appId)
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        folder = QDir::tempPath();
    return folder + "/" + appId + "-" + QString::number(geteuid());
}

int remaining(const QDeadlineTimer &deadline)
{
    return static_cast<int>(deadline.remainingTime());
}

} // namespace

QtSingleApplication::QtSingleApplication(const QString &appId, int &argc, char **argv)
    : QApplication(argc, argv), m_path(pathFor(appId)), m_lock(m_path + ".lock")
{
    // However long a lesson lasts: only a holder that has ended leaves a lock to be taken over.
    m_lock.setStaleLockTime(0);
    becomeInstance();
}

QtSingleApplication::~QtSingleApplication() = default;

// With the lock in hand, a socket that is there is the leftover of an instance that was killed.
bool QtSingleApplication::becomeInstance()
{
    if (m_server)
        return true;
    if (!m_lock.tryLock())
        return false;
    m_server = std::make_unique<QLocalServer>();
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server.get(), &QLocalServer::newConnection, this, &QtSingleApplication::acceptSender);
    QLocalServer::removeServer(m_path + ".socket");
    m_server->listen(m_path + ".socket");
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
        QThread::msleep(kRetryMs);
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
    stream.setVersion(kStreamVersion);
    stream << message;
    while (socket.bytesToWrite() > 0) {
        if (!socket.waitForBytesWritten(remaining(deadline)))
            return false;
    }
    // Written is not taken: an instance that hangs would never read it.
    char answer = 0;
    return socket.waitForReadyRead(remaining(deadline)) && socket.getChar(&answer) && answer == kTaken;
}

void QtSingleApplication::acceptSender()
{
    while (QLocalSocket *sender = m_server->nextPendingConnection()) {
        sender->setReadBufferSize(kMaximumMessageBytes);
        connect(sender, &QLocalSocket::disconnected, sender, &QObject::deleteLater);
        connect(sender, &QLocalSocket::readyRead, this, [this, sender] { takeMessage(sender); });
        takeMessage(sender); // it may be there already
    }
}

void QtSingleApplication::takeMessage(QLocalSocket *sender)
{
    QDataStream stream(sender);
    stream.setVersion(kStreamVersion);
    stream.startTransaction();
    QString message;
    stream >> message;
    if (!stream.commitTransaction())
        return; // not whole yet
    sender->putChar(kTaken);
    sender->flush();
    emit messageReceived(message);
}
