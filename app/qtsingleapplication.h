#pragma once

#include <QApplication>
#include <QLockFile>
#include <QString>

#include <memory>

class QDeadlineTimer;
class QLocalServer;
class QLocalSocket;

// An application of which each user runs one instance. Whoever gets the user's lock is the instance, and
// listens from then on; everybody else can send it messages. GUI thread only.
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
    void acceptSender();
    void takeMessage(QLocalSocket *sender);
    bool deliver(const QString &message, const QDeadlineTimer &deadline) const;

    QString m_path; // without the endings of the lock's and the socket's names
    QLockFile m_lock;
    std::unique_ptr<QLocalServer> m_server; // while this process is the instance; gone before the lock is
};
