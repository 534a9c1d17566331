#pragma once

#include <QApplication>
#include <QString>

#include <memory>

class QDeadlineTimer;
class QLocalServer;
class QLocalSocket;
class QLockFile;

// An application of which each user runs one instance. Whoever gets the user's lock is the instance, and
// listens from then on; everybody else can send it messages. Both stand in the user's runtime folder, or in
// the system's temporary folder where the first cannot be written to or its path is too long for a socket.
// Where neither will do, the instance runs all the same, but no other finds it. GUI thread only.
class QtSingleApplication : public QApplication
{
    Q_OBJECT

public:
    // appId: the name under which instances find each other. Becomes the instance when there is none.
    QtSingleApplication(const QString &appId, int &argc, char **argv);
    ~QtSingleApplication() override;

    // True when another instance has taken the message within timeoutMs. False when there is none, in which
    // case this process has become the instance, and when the instance did not answer in time. Blocks.
    bool sendMessage(const QString &message, int timeoutMs);

    // Whether another process is the instance.
    bool isRunning();

signals:
    void messageReceived(const QString &message);

private:
    bool becomeInstance();
    void useFolder(const QString &folder);
    bool listen();
    void acceptSender();
    void takeMessage(QLocalSocket *sender);
    bool deliver(const QString &message, const QDeadlineTimer &deadline) const;

    QString m_name;     // of the lock and the socket, without their endings
    QString m_fallback; // the second folder; null once it is in use
    QString m_path;     // folder and name
    std::unique_ptr<QLockFile> m_lock;
    std::unique_ptr<QLocalServer> m_server; // while this process is the instance; gone before the lock is
};
