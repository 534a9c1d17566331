#include "capture/livevideowidget.h"
#include "dialog/keyhelp.h"
#include "tests/dialog/mainwindow.h"
#include "util/desktop/spokenlabel.h"
#include "util/files/alivewait.h"
#include "widgets/moviewidget.h"

#include <QProcess>

// The table of keys over the main window, by events as the X server's reach it.
class TestKeyHelp : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void goesWithTheNextPress_data();
    void goesWithTheNextPress();
    void goesWithARealMouseAfterAMovie();
    void staysAboveWhatComes();
    void makesWayForMessages();
    void waitsForNothing();

private:
    QWindow *window() const { return m_main->window->windowHandle(); }
    const KeyHelp *help() const { return m_main->window->findChild<KeyHelp *>(); }
    bool isShown() const { return help() && help()->isVisible(); }
    void key(Qt::Key key) const { QTest::keyClick(window(), key); }

    // As a key that is held down does it.
    void repeat(Qt::Key key) const
    {
        for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress}) {
            QKeyEvent event(type, key, Qt::NoModifier, QString(), true);
            QCoreApplication::sendEvent(window(), &event);
        }
    }
    void touch(const QPoint &place, bool isPress)
    {
        QTest::QTouchEventSequence sequence = QTest::touchEvent(window(), m_screen);
        isPress ? sequence.press(0, place, window()) : sequence.release(0, place, window());
    }
    int quarterTurns() const { return m_main->view<LiveVideoWidget>()->facts().now().quarterTurns; }

    std::unique_ptr<MainWindow> m_main;
    QTouchDevice *m_screen = QTest::createTouchDevice();
};

void TestKeyHelp::init()
{
    m_main.reset();
    m_main =
        std::make_unique<MainWindow>("AutoShoot=1\nAutoShootTime=1\nContinuShootCount=2\nPhotoPreview=0\n");
    QTRY_VERIFY(m_main->button("Photo")->isEnabled());
}

void TestKeyHelp::goesWithTheNextPress_data()
{
    QTest::addColumn<QString>("press");
    for (const char *press : {"F1", "Space", "Return", "R", "mouse", "finger"})
        QTest::newRow(press) << press;
}

void TestKeyHelp::goesWithTheNextPress()
{
    QFETCH(const QString, press);
    const QPoint list = m_main->button("List")->geometry().center();
    m_main->button("List")->setFocus();
    key(Qt::Key_F1);
    QVERIFY(isShown());
    QCOMPARE(help()->geometry(), m_main->window->rect());
    QVERIFY(help()->findChild<SpokenLabel *>()->accessibleName().contains("Ctrl+C: "));
    repeat(Qt::Key_F1);
    QTest::keyRelease(window(), Qt::Key_F1);
    QVERIFY(isShown());

    if (press == "mouse") {
        QTest::mousePress(window(), Qt::LeftButton, Qt::NoModifier, list);
        QVERIFY(!isShown());
        QTest::mouseRelease(window(), Qt::LeftButton, Qt::NoModifier, list);
    } else if (press == "finger") {
        touch(list, true);
        QVERIFY(!isShown());
        touch(list, false);
    } else {
        const auto pressed = Qt::Key(QKeySequence(press)[0]);
        QTest::keyPress(window(), pressed);
        QVERIFY(!isShown());
        repeat(pressed);
        QTest::keyRelease(window(), pressed);
    }
    QCoreApplication::processEvents();
    QVERIFY(!isShown());
    QCOMPARE(m_main->window->currentMode(), DisplayMode::Live);
    QCOMPARE(quarterTurns(), 0);

    // The next one works again.
    key(Qt::Key_R);
    QCOMPARE(quarterTurns(), 1);
    QTest::mouseClick(window(), Qt::LeftButton, Qt::NoModifier, list);
    QCOMPARE(m_main->window->currentMode(), DisplayMode::List);
    QVERIFY(!help());
}

// The player makes the X server know the widgets, which it then gives the mouse to.
void TestKeyHelp::goesWithARealMouseAfterAMovie()
{
    while (!m_main->view<MovieWidget>()->prepare()) {
    }
    const QPoint list = m_main->button("List")->mapToGlobal(m_main->button("List")->rect().center());
    const QStringList click = {"mousemove", QString::number(list.x()), QString::number(list.y()), "click",
                               "1"};
    key(Qt::Key_F1);
    QVERIFY(isShown());
    QCOMPARE(QProcess::execute("xdotool", click), 0);
    QTRY_VERIFY(!isShown());
    QTRY_COMPARE(QGuiApplication::mouseButtons(), Qt::NoButton);
    QCOMPARE(m_main->window->currentMode(), DisplayMode::Live);
    QCOMPARE(QProcess::execute("xdotool", click), 0);
    QTRY_COMPARE(m_main->window->currentMode(), DisplayMode::List);
}

// A timed series goes on, and ends with its photos side by side.
void TestKeyHelp::staysAboveWhatComes()
{
    m_main->press("PhotoMulti");
    key(Qt::Key_F1);
    QTRY_COMPARE_WITH_TIMEOUT(m_main->tiles().size(), 2, 15000);
    QCOMPARE(MainWindow::captures("photo*").size(), 2);
    QVERIFY(isShown());
    for (const PictureWidget *tile : m_main->tiles())
        QVERIFY(help()->isAncestorOf(m_main->window->childAt(tile->geometry().center())) ||
                m_main->window->childAt(tile->geometry().center()) == help());
}

void TestKeyHelp::makesWayForMessages()
{
    key(Qt::Key_F1);
    QVERIFY(isShown());
    const Answers answers({"OK"});
    m_main->devices.pull("cam");
    QTRY_COMPARE(answers.told().size(), 1);
    QVERIFY(!isShown());
}

void TestKeyHelp::waitsForNothing()
{
    const auto pressOnce = [this] {
        key(Qt::Key_F1);
        return true;
    };
    QVERIFY(waitAlive(pressOnce, std::chrono::seconds(1)));
    QVERIFY(!help());

    bool isAsked = false;
    QTimer look; // again and again, as the press itself may wait before the dialog runs
    connect(&look, &QTimer::timeout, this, [this, &isAsked] {
        auto *settings = m_main->window->findChild<Setting *>();
        if (isAsked || !settings || !settings->isActiveWindow())
            return;
        isAsked = true;
        QTest::keyClick(settings->windowHandle(), Qt::Key_F1);
        settings->reject();
    });
    look.start(10);
    m_main->press("Settings");
    QVERIFY(isAsked && !help());
}

QTEST_MAIN(TestKeyHelp)
#include "tst_keyhelp.moc"
