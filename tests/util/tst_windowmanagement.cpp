#include "util/desktop/windowmanagement.h"

#include <QProcess>
#include <QScreen>
#include <QTest>

#include <csignal>
#include <unistd.h>

#include <X11/Xlib.h>
#undef None

namespace
{

// A blue window of the program over the screen's middle.
class RaisedWindow : public QWidget, public CWindowManagement
{
public:
    RaisedWindow() : CWindowManagement(this, raisePeriodMs, true, QString())
    {
        setWindowFlag(Qt::FramelessWindowHint);
        setGeometry(0, 0, 1000, 700);
        setPalette(QPalette(Qt::blue, Qt::blue));
        show();
    }
};

// Stands for the whiteboard: a black window of another client of the X server, which comes up with the focus.
class OtherClient
{
public:
    OtherClient() : m_display(XOpenDisplay(nullptr))
    {
        const Window root = DefaultRootWindow(m_display);
        XMapRaised(m_display, XCreateSimpleWindow(m_display, root, 0, 0, 1000, 700, 0, 0, 0));
        XFlush(m_display);
    }
    ~OtherClient() { XCloseDisplay(m_display); }

private:
    Display *m_display;
};

// Whether the screen's middle becomes of that colour.
bool comesUp(const QColor &colour, int withinMs = 5000)
{
    QScreen *screen = QGuiApplication::primaryScreen();
    const QPoint middle = screen->geometry().center();
    const auto isUp = [&] {
        return screen->grabWindow(0, middle.x(), middle.y(), 1, 1).toImage().pixelColor(0, 0) == colour;
    };
    return QTest::qWaitFor(isUp, withinMs);
}

} // namespace

class TestWindowManagement : public QObject
{
    Q_OBJECT

private slots:
    void comesBackOnTopUntilStopped()
    {
        RaisedWindow window;
        window.stop_window(); // before it is raised over what the window manager holds to be the top
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const OtherClient other;
        QVERIFY(comesUp(Qt::black));
        QTRY_VERIFY(!window.isActiveWindow());
        QVERIFY(!comesUp(Qt::blue, 3 * raisePeriodMs));

        // A whole period from the loss of the focus to the next tick is the longest it can take.
        QElapsedTimer sinceStart;
        sinceStart.start();
        window.start_window(raisePeriodMs);
        QVERIFY(comesUp(Qt::blue));
        const qint64 elapsed = sinceStart.elapsed();
        const qint64 lookingMs = 400; // on a slow machine
        QVERIFY2(elapsed <= raisePeriodMs + lookingMs, qPrintable(QString::number(elapsed)));
    }

    // As at a log-in, when everything starts at once.
    void waitsForASlowWindowManager()
    {
        QProcess search;
        search.start("pgrep", {"-x", "openbox", "-P", QString::number(getppid())});
        QVERIFY(search.waitForFinished());
        const pid_t manager = search.readAllStandardOutput().toInt();
        QVERIFY(manager > 0);
        QCOMPARE(kill(manager, SIGSTOP), 0);
        RaisedWindow window;
        QTest::qWait(3 * raisePeriodMs);
        QCOMPARE(kill(manager, SIGCONT), 0);
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }
};

QTEST_MAIN(TestWindowManagement)
#include "tst_windowmanagement.moc"
