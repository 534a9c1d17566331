#include <QLocalSocket>
#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

#include <csignal>
#include <memory>
#include <unistd.h>
#include <vector>

// Several real processes, as a user starts them.
class TestSingleInstance : public QObject
{
    Q_OBJECT

private slots:
    void secondStartHandsOverAndEnds();
    void twentyAtOnceLeaveOne_data();
    void twentyAtOnceLeaveOne();
    void hungInstanceIsNotWaitedForLonger();
    void garbageDoesNoHarm();
    void endsCleanlyOnSignals_data();
    void endsCleanlyOnSignals();
};

namespace
{

class Starter : public QProcess
{
public:
    explicit Starter(int timeoutMs = 5000)
    {
        start(QCoreApplication::applicationDirPath() + "/instancestarter",
              {QString::number(timeoutMs)});
    }
    ~Starter() override
    {
        kill();
        waitForFinished();
    }
    bool says(const QByteArray &line, int withinMs = 20000)
    {
        return QTest::qWaitFor([&] { return heard().contains(line); }, withinMs);
    }
    QList<QByteArray> heard()
    {
        m_heard += readAllStandardOutput();
        return m_heard.split('\n');
    }
    bool ended(int withinMs = 5000)
    {
        return QTest::qWaitFor([&] { return state() == NotRunning; }, withinMs);
    }

private:
    QByteArray m_heard;
};

} // namespace

void TestSingleInstance::secondStartHandsOverAndEnds()
{
    Starter first;
    QVERIFY(first.says("first"));
    Starter second;
    QVERIFY(second.ended(5000));
    QVERIFY(second.says("second") && second.exitStatus() == QProcess::NormalExit);
    QCOMPARE(second.exitCode(), 0);
    QVERIFY(first.says("message Wake up!"));
    first.kill(); // leaves its socket behind
    QVERIFY(first.ended());
    Starter next;
    QVERIFY(next.says("first", 5000));
}

void TestSingleInstance::twentyAtOnceLeaveOne_data()
{
    QTest::addColumn<bool>("afterKill");
    QTest::newRow("fresh") << false;
    QTest::newRow("after SIGKILL") << true;
}

void TestSingleInstance::twentyAtOnceLeaveOne()
{
    QFETCH(bool, afterKill);
    if (afterKill) {
        Starter killed;
        QVERIFY(killed.says("first"));
        killed.kill();
        QVERIFY(killed.ended());
    }
    std::vector<std::unique_ptr<Starter>> starters;
    starters.reserve(20);
    for (int i = 0; i < 20; ++i)
        starters.push_back(std::make_unique<Starter>());
    int firsts = 0;
    int messages = 0;
    for (const auto &starter : starters) {
        QVERIFY(QTest::qWaitFor([&] { return starter->heard().size() > 1; }, 20000));
        if (!starter->heard().contains("first")) {
            QVERIFY(starter->ended());
            QVERIFY(starter->heard().contains("second") && starter->exitCode() == 0);
        }
    }
    for (const auto &starter : starters) {
        firsts += starter->heard().count("first");
        messages += starter->heard().count("message Wake up!");
    }
    QCOMPARE(firsts, 1);
    QCOMPARE(messages, 19);
}

void TestSingleInstance::hungInstanceIsNotWaitedForLonger()
{
    Starter first;
    QVERIFY(first.says("first"));
    kill(static_cast<pid_t>(first.processId()), SIGSTOP);
    Starter second(700);
    QVERIFY(second.says("alone"));
    QCOMPARE(second.state(), QProcess::Running);
}

void TestSingleInstance::garbageDoesNoHarm()
{
    Starter first;
    QVERIFY(first.says("first"));
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    QLocalSocket socket;
    socket.connectToServer(runtime + "/OrvaneTest-" + QString::number(geteuid()) + ".socket");
    QVERIFY(socket.waitForConnected(5000));
    socket.write(QByteArray(1 << 20, '\x7f'));
    socket.flush();
    Starter second;
    QVERIFY(second.says("second"));
}

void TestSingleInstance::endsCleanlyOnSignals_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void TestSingleInstance::endsCleanlyOnSignals()
{
    QFETCH(int, number);
    Starter first;
    QVERIFY(first.says("first"));
    kill(static_cast<pid_t>(first.processId()), number);
    QVERIFY(first.ended());
    QCOMPARE(first.exitStatus(), QProcess::NormalExit);
    QCOMPARE(first.exitCode(), 7);
}

QTEST_GUILESS_MAIN(TestSingleInstance)
#include "tst_singleinstance.moc"
