#include "util/desktop/screenawake.h"

#include <QDBusConnection>
#include <QProcess>
#include <QTest>

// Stands for a desktop's screen saver. Two of its cookies at a time would be one too many.
class Desktop : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")

public:
    QStringList reasons; // of those who keep it away
    int calls = 0;

public slots:
    uint Inhibit(const QString &application, const QString &reason)
    {
        reasons << application + ": " + reason;
        return uint(++calls);
    }
    void UnInhibit(uint cookie)
    {
        if (cookie == uint(calls))
            reasons.clear();
    }
};

class TestScreenAwake : public QObject
{
    Q_OBJECT

private slots:
    void asksTheDesktop()
    {
        QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "desktop");
        Desktop desktop;
        QVERIFY(
            bus.registerObject("/org/freedesktop/ScreenSaver", &desktop, QDBusConnection::ExportAllSlots));
        QVERIFY(bus.registerService("org.freedesktop.ScreenSaver"));
        const QStringList kept("tst_screenawake: Live");
        {
            ScreenAwake awake("Live");
            QTest::qWait(50);
            QCOMPARE(desktop.calls, 0);
            awake.keep(true);
            awake.keep(true);
            QTRY_COMPARE(desktop.reasons, kept);
            awake.keep(false);
            QTRY_COMPARE(desktop.reasons, QStringList());
            // Before the desktop has answered.
            awake.keep(true);
            awake.keep(false);
            QTRY_COMPARE(desktop.calls, 2);
            QTRY_COMPARE(desktop.reasons, QStringList());
            awake.keep(true);
            QTRY_COMPARE(desktop.reasons, kept);
            QCOMPARE(desktop.calls, 3);
        }
        QTRY_COMPARE(desktop.reasons, QStringList());
    }
};

int main(int argc, char **argv)
{
    // A session of its own.
    QProcess daemon;
    daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    if (!daemon.waitForReadyRead())
        qFatal("no session bus");
    qputenv("DBUS_SESSION_BUS_ADDRESS", daemon.readLine().trimmed());
    QApplication application(argc, argv);
    TestScreenAwake test;
    const int failures = QTest::qExec(&test, argc, argv);
    daemon.kill();
    daemon.waitForFinished();
    return failures;
}

#include "tst_screenawake.moc"
