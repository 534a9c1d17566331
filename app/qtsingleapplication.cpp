#include "app/qtsingleapplication.h"

#include "app/instancefolder.h"
#include "util/files/folders.h"

#include <QDataStream>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QLocalSocket>
#include <QLoggingCategory>
#include <QStandardPaths>
#include <QThread>

namespace
{

Q_LOGGING_CATEGORY(instanceLog, "orvane.instance")

constexpr auto streamVersion = QDataStream::Qt_5_0; // instances of two builds must understand each other
constexpr qint64 maximumMessageBytes = 65536;       // above any message: no sender may fill the memory
constexpr char taken = '+';                         // the answer to a message
constexpr unsigned long retryMs = 20;               // between two looks for an instance that is just starting

constexpr int successionMs = 200; // between two looks whether it has ended

int remaining(const QDeadlineTimer &deadline)
{
    return static_cast<int>(deadline.remainingTime());
}

} // namespace

QtSingleApplication::QtSingleApplication(const QString &appId, int &argc, char **argv)
    : QApplication(argc, argv)
{
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    const QString folder = runtime + "/" + appId;
    if (!runtime.isEmpty() && makePrivateFolder(folder))
        addFolder(folder);
    const QString working = makeWorkingFolder();
    if (!working.isEmpty())
        addFolder(working);
    connect(&m_succession, &QTimer::timeout, this, [this] {
        if (becomeInstance())
            m_succession.stop();
    });
    becomeInstance();
}

QtSingleApplication::~QtSingleApplication() = default;

void QtSingleApplication::addFolder(const QString &path)
{
    m_folders.push_back(std::make_unique<InstanceFolder>(path));
}

// All folders or none: whoever has only some of them would keep the instance from the others.
bool QtSingleApplication::becomeInstance()
{
    if (m_isInstance)
        return true;
    m_other = nullptr;
    for (const auto &folder : m_folders) {
        if (folder->lock())
            continue;
        m_other = folder.get();
        for (const auto &locked : m_folders)
            locked->unlock();
        return false;
    }
    listen();
    m_isInstance = true;
    return true;
}

void QtSingleApplication::listen()
{
    for (const auto &folder : m_folders) {
        if (!folder->listen([this](QLocalSocket *sender) { acceptSender(sender); }))
            qCWarning(instanceLog, "Later starts are not heard: no socket can be made in %s.",
                      qUtf8Printable(QFileInfo(folder->socket()).canonicalPath()));
    }
}

bool QtSingleApplication::isRunning()
{
    const bool isAnother = !becomeInstance();
    if (isAnother)
        m_succession.start(successionMs);
    return isAnother;
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
    socket.connectToServer(m_other->socket());
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

void QtSingleApplication::acceptSender(QLocalSocket *sender)
{
    sender->setReadBufferSize(maximumMessageBytes);
    connect(sender, &QLocalSocket::disconnected, sender, &QObject::deleteLater);
    connect(sender, &QLocalSocket::readyRead, this, [this, sender] { takeMessage(sender); });
    takeMessage(sender); // it may be there already
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
