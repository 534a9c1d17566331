#include "tests/support/modalanswer.h"
#include "util/webcamutil.h"
#include "util/windowmanagement.h"

#include <QScreen>
#include <QX11Info>
#include <QtTest>

#include <algorithm>
#include <vector>

#include <X11/Xlib.h>
#undef None

namespace
{

class RaisedWindow : public QWidget, public CWindowManagement
{
public:
    RaisedWindow() : CWindowManagement(this, raisePeriodMs, true, QString())
    {
        setWindowFlag(Qt::FramelessWindowHint);
        setGeometry(0, 0, 400, 300);
    }
    void update_window() override
    {
        ++ticks;
        CWindowManagement::update_window();
    }
    int ticks = 0;
};

// Stands for the whiteboard: a window of another client of the X server.
class OtherClient
{
public:
    OtherClient() : m_display(XOpenDisplay(nullptr))
    {
        m_window = XCreateSimpleWindow(m_display, DefaultRootWindow(m_display), 0, 0, 500, 400, 0, 0, 0);
        XMapRaised(m_display, m_window);
        XSync(m_display, False);
    }
    ~OtherClient() { XCloseDisplay(m_display); }

    // As a click on it does.
    void takeFocus()
    {
        XRaiseWindow(m_display, m_window);
        XSetInputFocus(m_display, m_window, RevertToParent, CurrentTime);
        XSync(m_display, False);
    }
    bool isViewable() const
    {
        XWindowAttributes attributes = {};
        XGetWindowAttributes(m_display, m_window, &attributes);
        return attributes.map_state == IsViewable;
    }
    WId window() const { return m_window; }

private:
    Display *m_display;
    Window m_window;
};

std::vector<Window> children(Window window, Window *parent)
{
    Window root = 0;
    Window *list = nullptr;
    unsigned int count = 0;
    if (!XQueryTree(QX11Info::display(), window, &root, parent, &list, &count))
        return {};
    std::vector<Window> result(list, list + count);
    if (list)
        XFree(list);
    return result;
}

Window frameOf(Window window)
{
    const Window root = QX11Info::appRootWindow();
    Window parent = window;
    while (parent != root && parent != 0) {
        window = parent;
        children(window, &parent);
    }
    return window;
}

bool isAbove(Window upper, Window lower)
{
    Window parent = 0;
    const std::vector<Window> stack = children(QX11Info::appRootWindow(), &parent); // lowest first
    const auto place = [&stack](Window w) { return std::find(stack.begin(), stack.end(), frameOf(w)); };
    return place(lower) < place(upper) && place(upper) != stack.end();
}

// Asks until it is so, and no more often: the window manager works on the stack in between.
bool comesAbove(Window upper, Window lower, int withinMs = 5000)
{
    return QTest::qWaitFor([=] { return isAbove(upper, lower); }, withinMs);
}

} // namespace

class TestWindowManagement : public QObject
{
    Q_OBJECT

private slots:
    void comesBackOnTopUntilStopped();
    void startingTwiceLeavesOneTimer();
    void staysBelowItsOwnModalDialog();
    void findsProcesses();
    void boxes();
};

void TestWindowManagement::comesBackOnTopUntilStopped()
{
    RaisedWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.stop_window();
    OtherClient other;
    QTRY_VERIFY(other.isViewable());
    other.takeFocus();
    QVERIFY(comesAbove(other.window(), window.winId()));
    QTRY_VERIFY(!window.isActiveWindow());
    QVERIFY(!comesAbove(window.winId(), other.window(), 3 * raisePeriodMs));

    // A whole period from the loss of the focus to the next tick is the longest it can take.
    QElapsedTimer sinceStart;
    sinceStart.start();
    window.start_window(raisePeriodMs);
    QVERIFY(comesAbove(window.winId(), other.window()));
    const qint64 pollMs = 50; // looking takes a while, too
    QVERIFY2(sinceStart.elapsed() <= raisePeriodMs + pollMs,
             qPrintable(QString::number(sinceStart.elapsed())));

    // The window manager still takes the window for its own.
    XWindowAttributes attributes = {};
    QVERIFY(XGetWindowAttributes(QX11Info::display(), window.winId(), &attributes));
    QVERIFY(!attributes.override_redirect);
}

void TestWindowManagement::startingTwiceLeavesOneTimer()
{
    RaisedWindow window;
    window.start_window(100);
    window.start_window(100);
    window.ticks = 0;
    QElapsedTimer clock;
    clock.start();
    QTRY_VERIFY(window.ticks >= 5);
    QVERIFY(clock.elapsed() >= 480);
    window.stop_window();
    window.ticks = 0;
    QVERIFY(!QTest::qWaitFor([&] { return window.ticks > 0; }, 300));
    CWindowManagement(nullptr, 10, true, QString()).start_window(10); // without a widget nothing runs
}

void TestWindowManagement::staysBelowItsOwnModalDialog()
{
    RaisedWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QMessageBox box(QMessageBox::NoIcon, "box", "box", QMessageBox::Ok, &window);
    box.open();
    QVERIFY(QTest::qWaitForWindowActive(&box));
    window.ticks = 0;
    QTRY_VERIFY(window.ticks >= 2);
    QVERIFY(isAbove(box.winId(), window.winId()));
}

void TestWindowManagement::findsProcesses()
{
    std::string own = "tst_windowmanagement";
    std::string nobody = "no-such-process-anywhere";
    QVERIFY(CWindowManagement::isRunning(own) && !CWindowManagement::isRunning(nobody));
}

void TestWindowManagement::boxes()
{
    QWidget parent;
    parent.setGeometry(QGuiApplication::primaryScreen()->geometry());
    parent.show();
    QVERIFY(QTest::qWaitForWindowActive(&parent));
    QString seen;
    const auto inspect = [&](QMessageBox &box) {
        QVERIFY(QTest::qWaitForWindowActive(&box));
        // Qt adds the flags of the title bar.
        const int own = 0x103 | Qt::WindowStaysOnTopHint | Qt::WindowType_Mask;
        seen = QString("%1 %2 %3")
                   .arg(box.windowTitle())
                   .arg(box.icon())
                   .arg(int(box.windowFlags()) & own, 0, 16);
        QCOMPARE(box.buttons().size(), 1);
        const QPoint off = QRect(box.pos(), box.size()).center() - parent.geometry().center();
        QVERIFY2(off.manhattanLength() <= 2, qPrintable(QString("%1 %2").arg(off.x()).arg(off.y())));
        QCOMPARE(box.minimumSize(), box.maximumSize());
        QVERIFY(comesAbove(box.winId(), parent.winId()));
        if (auto *managed = dynamic_cast<CWindowManagement *>(&box)) {
            OtherClient other;
            QTRY_VERIFY(other.isViewable());
            other.takeFocus();
            QVERIFY(comesAbove(box.winId(), other.window()));
            managed->stop_window();
        }
    };
    const QString disk =
        "The disk free space is insufficient.\nTaking a picture is discontinued. Please secure the "
        "free space. ";
    const struct {
        std::function<void()> show;
        QString text;
        QString seen;
    } table[] = {
        {[&] { WebcamUtil::infoMessage("Hello", &parent); }, "Hello", "Orvane 1 103"},
        {[&] { WebcamUtil::WarningMessage("Hello", &parent); }, "Hello", "Orvane 2 40103"},
        {[&] { WebcamUtil::ShowDiskWorningMessage(&parent); }, disk, "Orvane 2 103"},
        {[&] { WebcamUtil::CriticalMessage("Hello", &parent); }, "Hello", "Orvane 3 103"},
    };
    for (const auto &row : table) {
        const ModalAnswer answer(inspect);
        row.show();
        QCOMPARE(answer.text(), row.text);
        QCOMPARE(seen, row.seen);
    }
}

QTEST_MAIN(TestWindowManagement)
#include "tst_windowmanagement.moc"
