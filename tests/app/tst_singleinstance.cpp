#include "tests/app/program.h"
#include "tests/support/testdevices.h"

#include <QLocalSocket>
#include <QLockFile>
#include <QStandardPaths>

#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

// Several real starts at once, as an impatient user makes them.
class TestSingleInstance : public QObject
{
    Q_OBJECT

    TestDevices m_devices;

private slots:
    void initTestCase()
    {
        m_devices.camera("cam").name("Board Cam").formats("YUY2 640x480 30").content("page");
        m_devices.microphone("mic").sound("silence");
        m_devices.write();
    }

    void twentyAtOnceLeaveOne()
    {
        Program killed; // leaves its lock and its socket behind
        QVERIFY(killed.start(false));
        killed.process().kill();
        QVERIFY(killed.waitForEnd());
        QProcess starts;
        starts.start("sh",
                     {"-c", "for i in $(seq 20); do { $0; echo ended $?; } & done; wait", ORVANE_PROGRAM});
        QByteArray heard;
        const auto ended = [&] { return (heard += starts.readAllStandardOutput()).count("ended 0\n"); };
        QTRY_COMPARE_WITH_TIMEOUT(ended(), 19, 30000);
        QTRY_COMPARE(Program::windows(), 1);
        Program::click(Program::exitButton());
        QTRY_COMPARE(ended(), 20);
    }

    // Each has the one working folder, and would ask about what the other has taken.
    void isFoundFromAnyRuntimeFolderByItsUserAlone()
    {
        Program first;
        QVERIFY(first.start(false));
        const QTemporaryDir other;
        for (const QString &runtime : {other.path(), QString()}) {
            Program second;
            QProcessEnvironment session = QProcessEnvironment::systemEnvironment();
            session.insert("XDG_RUNTIME_DIR", runtime);
            second.process().setProcessEnvironment(session);
            second.process().start(ORVANE_PROGRAM, QStringList());
            QVERIFY2(second.process().waitForFinished(4000), qPrintable(runtime));
            QCOMPARE(second.process().exitCode(), 0);
        }
        struct stat status = {};
        QCOMPARE(stat(QFile::encodeName(Program::workingFolder().filePath(".instance")), &status), 0);
        QCOMPARE(status.st_mode & (S_IRWXG | S_IRWXO), 0U);
    }

    void neitherAHangNorGarbageHoldsAStart()
    {
        Program first;
        QVERIFY(first.start(false));
        QLocalSocket socket;
        const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
        socket.connectToServer(runtime + "/Orvane/.instance");
        QVERIFY(socket.waitForConnected(5000));
        socket.write(QByteArray(1 << 20, '\x7f'));
        socket.flush();
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(QProcess::execute(ORVANE_PROGRAM, {}), 0);
        QVERIFY(clock.elapsed() < 5000);

        // One that hangs is waited for five seconds.
        kill(pid_t(first.process().processId()), SIGSTOP);
        Program second;
        second.process().start(ORVANE_PROGRAM, QStringList());
        QTRY_COMPARE_WITH_TIMEOUT(Program::windows(), 2, 15000);

        // The second succeeds it, and is found by those that come then.
        first.process().kill();
        QVERIFY(first.waitForEnd());
        const QLockFile lock(runtime + "/Orvane.lock");
        const auto holder = [&lock] {
            qint64 process = 0;
            QString host;
            QString program;
            return lock.getLockInfo(&process, &host, &program) ? process : 0;
        };
        QTRY_COMPARE(holder(), second.process().processId());
        Program third;
        third.process().start(ORVANE_PROGRAM, QStringList());
        QVERIFY(third.process().waitForFinished(4000));
    }

    void aLessonOfOneThatHangsIsNotDeleted()
    {
        Program first;
        QVERIFY(first.start(false));
        QFile photo(Program::workingFolder().filePath("photo20240101120000000.png"));
        QVERIFY(photo.open(QIODevice::WriteOnly) && photo.write("x") == 1);
        photo.close();
        kill(pid_t(first.process().processId()), SIGSTOP);
        Program second;
        second.process().start(ORVANE_PROGRAM, QStringList());
        QTRY_COMPARE_WITH_TIMEOUT(Program::windows(), 2, 15000);
        QTRY_VERIFY((Program::click(Program::exitButton()), Program::windows() == 3));
        Program::press("Tab"); // from Yes to No
        Program::press("space");
        QVERIFY(second.waitForEnd());
        first.process().kill();
        QVERIFY(first.waitForEnd());
        QVERIFY(photo.remove());
    }

    // By one that was killed while it made them, and by another user.
    void locksWithoutAHolderHoldNoStart()
    {
        const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
        const QString working = Program::workingFolder().path() + ".lock";
        for (const QString &path : {QString(runtime + "/Orvane.lock"), working}) {
            QFile lock(path);
            QVERIFY2(lock.open(QIODevice::WriteOnly | QIODevice::Truncate), qPrintable(path));
        }
        constexpr uid_t somebody = 12345;
        if (chown(QFile::encodeName(working), somebody, somebody) != 0)
            qInfo("only root can give a file away");
        Program first;
        QVERIFY(first.start(false));
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(QProcess::execute(ORVANE_PROGRAM, {}), 0); // it is found, so there were no locks in its way
        QVERIFY(clock.elapsed() < 5000);
    }
};

QTEST_MAIN(TestSingleInstance)
#include "tst_singleinstance.moc"
