#include "tests/app/program.h"
#include "tests/app/sessionmanager.h"
#include "tests/support/smalldisk.h"
#include "tests/support/testdevices.h"

#include <QScopeGuard>
#include <QSettings>
#include <QX11Info>

#include <sys/statvfs.h>

// Last: Xlib's macros break Qt's headers.
#include <X11/Xlib.h>
#undef None
#undef Bool

// What goes wrong under the real program, and what a teacher then sees.
class TestTrouble : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aMovieEndsWithItsDisk();
    void aPhotoThatIsNotSavedIsTold();
    void aMicrophoneThatCannotBeOpenedIsTold();
    void aSlowCameraIsWaitedFor();
    void aCameraComesBack();
    void leavingOtherwiseAsksOrSaves();
    void theSessionEnds();
    void theScreenChanges();
    void theSessionBusDies();
    void theWindowManagerDies();
    void theXServerDies();

private:
    static void answerMessage();
    static void startMovie();
    static void stopMovie();

    std::unique_ptr<TestDevices> m_devices;
};

static constexpr int workingDisk = 400; // mebibytes: a movie may be begun

static QDir saved()
{
    return QDir(QDir::home().filePath("VeltrixCamera/" + QDate::currentDate().toString("yyyyMMdd")));
}

void TestTrouble::init()
{
    m_devices = std::make_unique<TestDevices>();
    m_devices->camera("cam").name("Board Cam").formats("YUY2 640x480 30").content("page");
    m_devices->microphone("mic").sound("beep");
    m_devices->write();
    QSettings settings(QDir::home().filePath(".hollin_orvane.ini"), QSettings::IniFormat);
    settings.setValue("AutoShoot", 0);
    settings.setValue("ContinuShootCount", 3);
}

void TestTrouble::cleanup()
{
    m_devices.reset();
    Program::workingFolder().removeRecursively();
    QDir(QDir::home().filePath("VeltrixCamera")).removeRecursively();
}

// There is one, and its button takes it away. A second press, of a button of the main window's, would do
// more.
void TestTrouble::answerMessage()
{
    QTRY_COMPARE(Program::windows(), 2);
    Program::press("Return");
    QTRY_COMPARE(Program::windows(), 1);
}

void TestTrouble::startMovie()
{
    Program::click(Program::liveRow(3));
    QTRY_COMPARE(Program::rowLooks(Program::screen()), QString("dddEd"));
}

// Looks at it and goes back.
void TestTrouble::stopMovie()
{
    Program::click(Program::liveRow(3));
    QTRY_COMPARE_WITH_TIMEOUT(Program::buttonsShown(), 3, 15000);
    Program::click(Program::row(0));
    QTRY_COMPARE(Program::rowLooks(Program::screen()), QString("EEEEE"));
}

void TestTrouble::aMovieEndsWithItsDisk()
{
    const SmallDisk disk(workingDisk, Program::workingFolder().path());
    if (!disk.isMounted())
        QSKIP("a small file system takes root to mount");
    Program program;
    QVERIFY(program.start());
    Program::click(Program::liveRow(3));
    QTRY_COMPARE(Program::look(Program::screen(), Program::liveRow(0)), 'd');
    QTRY_COMPARE(Program::captures({"movie*"}).size(), 2);
    struct statvfs status = {};
    QCOMPARE(statvfs(QFile::encodeName(disk.path("")), &status), 0);
    constexpr qint64 left = 8 << 20;
    disk.fillUpTo(left, qint64(status.f_bavail) * qint64(status.f_bsize));
    QTRY_COMPARE_WITH_TIMEOUT(Program::windows(), 2, 15000);
    answerMessage();
    QTRY_COMPARE(Program::buttonsShown(), 3); // the movie, to be looked at
    QFile::remove(disk.path("filler"));
    Program::click(Program::row(0));
    QTRY_COMPARE(Program::rowLooks(Program::screen()), QString("EEEEE"));
    QVERIFY(program.quit());
}

void TestTrouble::aPhotoThatIsNotSavedIsTold()
{
    const SmallDisk disk(workingDisk, Program::workingFolder().path());
    if (!disk.isMounted())
        QSKIP("a small file system takes root to mount");
    Program program;
    QVERIFY(program.start());
    for (const int button : {1, 2}) { // a photo, and the second of a series
        if (button == 2) {
            Program::click(Program::liveRow(button));
            QTRY_COMPARE(Program::captures({"photo*"}).size(), 1);
        }
        QVERIFY(disk.makeReadOnly());
        Program::click(Program::liveRow(button));
        answerMessage();
        QVERIFY(disk.makeWritable());
        if (button == 1)
            Program::click(Program::retryButton());
        else
            QTRY_COMPARE(Program::buttonsShown(), 3); // the series has ended with the photo that there is
        if (button == 1)
            QTRY_COMPARE(Program::buttonsShown(), -5);
    }
    QTRY_VERIFY(Program::brightness(QPoint(512, 300)) > 60);
    QCOMPARE(Program::captures().size(), 1);
    QVERIFY(program.quit());
}

void TestTrouble::aMicrophoneThatCannotBeOpenedIsTold()
{
    m_devices->setFault("mic", "busy");
    Program program;
    QVERIFY(program.start());
    Program::click(Program::liveRow(3));
    answerMessage();
    QTRY_COMPARE(Program::rowLooks(Program::screen()), QString("EEEEE"));
    QCOMPARE(Program::captures(), QStringList());

    // One that dies is told after the movie, and only then.
    m_devices->setFault("mic", "");
    Program::click(Program::liveRow(3));
    QTRY_COMPARE(Program::captures({"movie*"}).size(), 2);
    QTest::qWait(500);
    m_devices->pull("mic");
    QTest::qWait(3000); // the hole
    QCOMPARE(Program::windows(), 1);
    Program::click(Program::liveRow(3));
    answerMessage();
    QTRY_COMPARE(Program::buttonsShown(), 3);
}

void TestTrouble::aSlowCameraIsWaitedFor()
{
    m_devices->camera("cam").set("opens-after", "6000");
    m_devices->write();
    Program program;
    QVERIFY(program.start(false));
    QTRY_COMPARE(Program::buttonsShown(), -5);
    Program::click(Program::liveRow(1)); // waits for the first picture
    QTRY_COMPARE_WITH_TIMEOUT(Program::captures({"photo*"}).size(), 1, 12000);
    QTRY_VERIFY(Program::showsPreview());
    Program::click(Program::retryButton());
    QTRY_VERIFY(Program::brightness(QPoint(400, 300)) > 30);
    QCOMPARE(Program::windows(), 1);
}

void TestTrouble::aCameraComesBack()
{
    m_devices->pull("cam");
    Program program;
    QVERIFY(program.start(false));
    answerMessage(); // there is none
    m_devices->plug("cam");
    const auto isLive = [] {
        return Program::brightness(QPoint(400, 300)) > 30 && Program::rowLooks(Program::screen()) == "EEEEE";
    };
    QTRY_VERIFY_WITH_TIMEOUT(isLive(), 3000);

    // While the message is read, on another screen.
    Program::click(Program::liveRow(4));
    QTRY_COMPARE(Program::buttonsShown(), 4);
    m_devices->pull("cam");
    QTRY_COMPARE(Program::windows(), 2);
    m_devices->plug("cam");
    answerMessage();
    QTRY_VERIFY_WITH_TIMEOUT(isLive(), 3000);

    for (int round = 0; round < 2; ++round) {
        m_devices->pull("cam");
        answerMessage();
        QTRY_COMPARE(Program::rowLooks(Program::screen()), QString("ddddE"));
        if (round == 1) { // on another screen nothing happens by itself
            Program::click(Program::liveRow(4));
            QTRY_COMPARE(Program::buttonsShown(), 4);
        }
        m_devices->plug("cam");
        if (round == 1) {
            QTest::qWait(1000);
            QCOMPARE(Program::buttonsShown(), 4);
            Program::click(Program::row(0));
        }
        QTRY_VERIFY_WITH_TIMEOUT(isLive(), 3000);
        QCOMPARE(Program::windows(), 1);
    }
}

// As the window manager's own button, or Alt+F4.
static void closeByWindowManager()
{
    Display *display = QX11Info::display();
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window =
        Program::xdotool({"search", "--onlyvisible", "--name", "^Orvane"}).simplified().toULong();
    event.xclient.message_type = XInternAtom(display, "_NET_CLOSE_WINDOW", 0);
    event.xclient.format = 32;
    XSendEvent(display, DefaultRootWindow(display), 0, SubstructureRedirectMask | SubstructureNotifyMask,
               &event);
    XFlush(display);
}

void TestTrouble::leavingOtherwiseAsksOrSaves()
{
    Program program;
    QVERIFY(program.start());
    Program::click(Program::liveRow(1));
    QTRY_VERIFY(Program::showsPreview());
    Program::click(Program::acceptButton());
    QTRY_COMPARE(Program::buttonsShown(), 3);
    closeByWindowManager();
    QTRY_COMPARE(Program::windows(), 2);
    QTRY_VERIFY((Program::answer(Program::Cancel), Program::windows() < 2));
    QCOMPARE(Program::captures().size(), 1);

    // In the middle of a movie.
    Program::click(Program::row(0));
    QTRY_COMPARE(Program::buttonsShown(), -5);
    Program::click(Program::liveRow(3));
    QTRY_COMPARE(Program::captures({"movie*"}).size(), 2);
    program.process().terminate();
    QVERIFY(program.waitForEnd());
    QCOMPARE(Program::captures(), QStringList());
    QCOMPARE(saved().entryList(QDir::Files).size(), 3);
}

// A log-out is called off once; what was taken is saved all the same, and the lesson goes on.
void TestTrouble::theSessionEnds()
{
    SessionManager manager;
    QVERIFY(!manager.address().isEmpty());
    QProcessEnvironment session = QProcessEnvironment::systemEnvironment();
    session.insert("SESSION_MANAGER", manager.address());
    Program program;
    program.process().setProcessEnvironment(session);
    QVERIFY(program.start());
    QTRY_VERIFY(manager.hasClient());
    for (int taken = 1; taken <= 2; ++taken) {
        Program::click(Program::liveRow(1));
        QTRY_VERIFY(Program::showsPreview());
        Program::click(Program::acceptButton());
        QTRY_COMPARE(Program::buttonsShown(), 3);
        manager.requestSave();
        QTRY_VERIFY(manager.hasSaved());
        QCOMPARE(Program::captures(), QStringList());
        QCOMPARE(saved().entryList(QDir::Files).size(), taken);
        if (taken == 1) {
            manager.cancelLogOut();
            QTRY_COMPARE(Program::rowLooks(Program::screen()), QString("EEEEE"));
        }
    }
    manager.endSession();
    QVERIFY(program.waitForEnd());
}

void TestTrouble::theScreenChanges()
{
    const auto use = [](const QString &mode) {
        return QProcess::execute("xrandr", {"--output", "screen", "--mode", mode});
    };
    QCOMPARE(QProcess::execute("xrandr", {"--newmode", "small", "40", "800", "840", "968", "1056", "600",
                                          "601", "605", "628"}),
             0);
    QCOMPARE(QProcess::execute("xrandr", {"--addmode", "screen", "small"}), 0);
    Program program;
    QVERIFY(program.start());
    for (const char *mode : {"small", "1024x768"}) {
        const int width = Program::width();
        QCOMPARE(use(mode), 0);
        QTRY_VERIFY(Program::width() != width);
        QTRY_COMPARE_WITH_TIMEOUT(Program::rowLooks(Program::screen()), QString("EEEEE"), 2000);
        QTRY_COMPARE(Program::look(Program::screen(), Program::exitButton()), 'E');
    }
    // A panel at the lower edge.
    constexpr int height = 40;
    QWidget panel;
    panel.setAttribute(Qt::WA_X11NetWmWindowTypeDock);
    panel.setGeometry(0, Program::height() - height, Program::width(), height);
    const long strut[] = {0, 0, 0, height};
    Display *display = QX11Info::display();
    XChangeProperty(display, panel.winId(), XInternAtom(display, "_NET_WM_STRUT", 0),
                    XInternAtom(display, "CARDINAL", 0), 32, PropModeReplace,
                    reinterpret_cast<const unsigned char *>(strut), 4);
    panel.show();
    QTRY_COMPARE(Program::look(Program::screen(), Program::exitButton() - QPoint(0, height)), 'E');
    QTRY_COMPARE(Program::look(Program::screen(), Program::liveRow(0) - QPoint(0, height)), 'E');
}

void TestTrouble::theSessionBusDies()
{
    QProcess bus;
    bus.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    QVERIFY(bus.waitForReadyRead(10000));
    QProcessEnvironment session = QProcessEnvironment::systemEnvironment();
    session.insert("DBUS_SESSION_BUS_ADDRESS", bus.readLine().trimmed());
    Program program;
    program.process().setProcessEnvironment(session);
    QVERIFY(program.start());
    startMovie();
    bus.kill();
    QVERIFY(bus.waitForFinished());
    stopMovie();
    QVERIFY(program.quit());
    QCOMPARE(saved().entryList(QDir::Files).size(), 2);
}

static Window managerOfWindows()
{
    Display *display = QX11Info::display();
    return XGetSelectionOwner(display, XInternAtom(display, "WM_S0", 0));
}

// As a window manager tells that windows are in its care. A dead one's word stands until it is taken away.
static Atom listOfWindows()
{
    return XInternAtom(QX11Info::display(), "_NET_CLIENT_LIST", 0);
}

static bool areWindowsManaged()
{
    int count = 0;
    const std::unique_ptr<Atom, decltype(&XFree)> names(
        XListProperties(QX11Info::display(), QX11Info::appRootWindow(), &count), &XFree);
    return std::find(names.get(), names.get() + count, listOfWindows()) != names.get() + count;
}

// The lesson goes on without one, and under the next one.
void TestTrouble::theWindowManagerDies()
{
    const Window first = managerOfWindows();
    XDeleteProperty(QX11Info::display(), QX11Info::appRootWindow(), listOfWindows());
    QProcess manager;
    manager.start("openbox", {"--replace"});
    QTRY_VERIFY(managerOfWindows() != first && managerOfWindows() != 0 && areWindowsManaged());
    Program program;
    QVERIFY(program.start());
    startMovie();
    manager.kill();
    QVERIFY(manager.waitForFinished());
    QTRY_COMPARE(managerOfWindows(), Window(0));
    XDeleteProperty(QX11Info::display(), QX11Info::appRootWindow(), listOfWindows());
    stopMovie();

    // It outlives this test, for the next one.
    QVERIFY(QProcess::startDetached("openbox", QStringList()));
    QTRY_VERIFY(managerOfWindows() != 0 && areWindowsManaged());
    startMovie();
    stopMovie();
    Program::click(Program::exitButton());
    QTRY_COMPARE(Program::windows(), 2);
    QTRY_VERIFY((Program::answer(Program::Yes), Program::windows() < 2));
    QVERIFY(program.waitForEnd());
    QCOMPARE(saved().entryList(QDir::Files).size(), 4);
}

// While a movie is shown, when most would be taken down.
void TestTrouble::theXServerDies()
{
    QProcess server;
    server.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1024x768x24", "-nolisten", "tcp", "-noreset"});
    QVERIFY(server.waitForReadyRead(10000));
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("DISPLAY", ':' + server.readLine().trimmed());
    const auto back = qScopeGuard([&display] { qputenv("DISPLAY", display); });
    Program program;
    QVERIFY(program.start(false));
    for (int press = 0; press < 2; ++press) {
        Program::click(Program::liveRow(3));
        QTRY_COMPARE(Program::captures({"movie*"}).size(), 2);
    }
    QTRY_VERIFY(program.threads().contains("qtdemux0:sink"));
    server.kill();
    QVERIFY(program.process().waitForFinished(5000));
    QCOMPARE(program.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(Program::captures({"movie*"}).size(), 2);
    QVERIFY(server.waitForFinished());
}

QTEST_MAIN(TestTrouble)
#include "tst_trouble.moc"
