#include <QDir>
#include <QLocalSocket>
#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

#include <csignal>
#include <memory>
#include <unistd.h>
#include <vector>

namespace
{

class Starter : public QProcess
{
public:
    explicit Starter(int timeoutMs = 5000)
    {
        start(QCoreApplication::applicationDirPath() + "/instancestarter", {QString::number(timeoutMs)});
    }
    ~Starter() override
    {
        kill();
        waitForFinished();
    }
    int times(const QByteArray &line)
    {
        m_heard += readAllStandardOutput();
        return m_heard.split('\n').count(line);
    }
    bool says(const QByteArray &line)
    {
        return QTest::qWaitFor([&] { return times(line) > 0; }, 20000);
    }
    bool ended()
    {
        return QTest::qWaitFor([&] { return state() == NotRunning; }, 5000);
    }

private:
    QByteArray m_heard;
};

} // namespace

// Several real processes, as a user starts them.
class TestSingleInstance : public QObject
{
    Q_OBJECT

private slots:
    void twentyAtOnceLeaveOne_data();
    void twentyAtOnceLeaveOne();
    void neitherAHangNorGarbageHoldsAStart();
    void endsCleanlyOnSignals();
};

void TestSingleInstance::twentyAtOnceLeaveOne_data()
{
    QTest::addColumn<QString>("runtimeFolder");
    const QString own = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    QTest::newRow("plain") << own;
    QTest::newRow("too long for a socket") << own + "/" + QString(120, 'x');
}

void TestSingleInstance::twentyAtOnceLeaveOne()
{
    QFETCH(QString, runtimeFolder);
    QDir().mkpath(runtimeFolder);
    QFile::setPermissions(runtimeFolder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    const auto restore = qScopeGuard([&before] { qputenv("XDG_RUNTIME_DIR", before); });
    qputenv("XDG_RUNTIME_DIR", runtimeFolder.toUtf8());

    Starter killed; // leaves its lock and its socket behind
    QVERIFY(killed.says("first"));
    killed.kill();
    QVERIFY(killed.ended());
    std::vector<std::unique_ptr<Starter>> starters(20);
    for (auto &starter : starters)
        starter = std::make_unique<Starter>();
    const auto heard = [&starters](const char *line) {
        int times = 0;
        for (const auto &starter : starters)
            times += starter->times(line);
        return times;
    };
    QTRY_COMPARE_WITH_TIMEOUT(heard("second"), 19, 20000);
    QTRY_COMPARE(heard("message Wake up!"), 19);
    QCOMPARE(heard("first"), 1);
    for (const auto &starter : starters)
        QVERIFY(starter->times("first") || (starter->ended() && starter->exitCode() == 0));
}

void TestSingleInstance::neitherAHangNorGarbageHoldsAStart()
{
    Starter first;
    QVERIFY(first.says("first"));
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    QLocalSocket socket;
    socket.connectToServer(runtime + "/OrvaneTest-" + QString::number(geteuid()) + ".socket");
    QVERIFY(socket.waitForConnected(5000));
    socket.write(QByteArray(1 << 20, '\x7f'));
    socket.flush();
    QVERIFY(Starter().says("second"));

    kill(static_cast<pid_t>(first.processId()), SIGSTOP);
    Starter third(700);
    QVERIFY(third.says("alone"));
    QCOMPARE(third.state(), QProcess::Running);
}

void TestSingleInstance::endsCleanlyOnSignals()
{
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        Starter first;
        QVERIFY(first.says("first"));
        kill(static_cast<pid_t>(first.processId()), number);
        QVERIFY(first.ended());
        QCOMPARE(first.exitStatus(), QProcess::NormalExit);
        QCOMPARE(first.exitCode(), 7);
    }
}

QTEST_GUILESS_MAIN(TestSingleInstance)
#include "tst_singleinstance.moc"
