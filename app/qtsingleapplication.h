#pragma once

#include <QApplication>
#include <QString>
#include <QTimer>

#include <memory>
#include <vector>

class InstanceFolder;
class QDeadlineTimer;
class QLocalSocket;

// An application of which each user runs one instance. It is found in two places: in the user's runtime
// folder, and in the working folder, where a start with another runtime folder, or with none, finds it too:
// two instances with one working folder would take each other's captures for left over. Whoever has locked
// both is the instance, and listens in both from then on; everybody else can send it messages. A place that
// does not serve is done without. GUI thread only.
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

    // Whether another process is the instance. While it is, and the event loop runs, this process waits to
    // become the instance when that one ends: later starts must find it.
    bool isRunning();

signals:
    void messageReceived(const QString &message);

private:
    void addFolder(const QString &path);
    bool becomeInstance();
    void listen();
    void acceptSender(QLocalSocket *sender);
    void takeMessage(QLocalSocket *sender);
    bool deliver(const QString &message, const QDeadlineTimer &deadline) const;

    std::vector<std::unique_ptr<InstanceFolder>> m_folders;
    const InstanceFolder *m_other = nullptr; // that another process holds; null when none was found
    bool m_isInstance = false;
    QTimer m_succession;
};
