#include "capture/livevideowidget.h"
#include "capture/timerwidget.h"
#include "tests/dialog/mainwindow.h"
#include "widgets/moviewidget.h"
#include "widgets/picturelistview.h"

#include <QScopeGuard>

#include <sys/statvfs.h>

// The disk is as full as a test wants it to be: this one is found before the C library's.
static fsblkcnt_t freeMiB = 100000;
extern "C" int statvfs(const char *, struct statvfs *status)
{
    *status = {};
    status->f_bsize = status->f_frsize = 1048576;
    status->f_bavail = freeMiB;
    return 0;
}

static const char *const liveRow = "Live+ Photo+ PhotoMulti+ Movie+ List+ Settings+ Close+";
static const char *const errorRow = "Live Photo PhotoMulti Movie List+ Settings Close+";

class TestCaptureCommands : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { freeMiB = 100000; }
    void everyButtonHasItsBitmaps();
    void seriesByHand();
    void seriesByTime();
    void fullDiskRefuses();
    void foreignFolderIsRefused();
    void lossInEveryScreen();

private:
    static bool isTicking(const MainWindow &main)
    {
        return main.view<TimerWidget>()->findChild<QTimer *>()->isActive();
    }
    static int photos() { return MainWindow::captures("photo*").size(); }
};

// Without them it would shrink to nothing.
void TestCaptureCommands::everyButtonHasItsBitmaps()
{
    const MainWindow main;
    const auto buttons = main.window->findChildren<CStretchBitmapButton *>();
    QCOMPARE(buttons.size(), int(buttonCount));
    for (const auto *button : buttons) {
        for (const char *ending : {"_up.bmp", "_dw.bmp", "_ds.bmp"})
            QVERIFY2(!QImage(":res/" + button->objectName() + ending).isNull(),
                     qPrintable(button->objectName()));
    }
}

void TestCaptureCommands::seriesByHand()
{
    MainWindow byHand("AutoShoot=0\nContinuShootCount=3\n");
    for (const char *button : {"PhotoMulti", "PhotoMulti", "Live", "PhotoMulti"})
        byHand.press(button); // left in the middle, it begins anew
    QCOMPARE(photos(), 3);
    QCOMPARE(byHand.view<PictureListView>()->nameList().size(), 1);
    QCOMPARE(byHand.view<PictureWidget>()->findChild<QLabel *>()->text(), QString("1/3"));
}

void TestCaptureCommands::seriesByTime()
{
    MainWindow main("AutoShoot=1\nAutoShootTime=1\nContinuShootCount=3\n");
    QElapsedTimer clock;
    main.press("PhotoMulti");
    clock.start();
    QTRY_COMPARE(main.view<TimerWidget>()->text(), QString("1 second to capture"));
    QTRY_COMPARE_WITH_TIMEOUT(photos(), 1, 4000); // the first one a second late
    QVERIFY2(clock.elapsed() > 1800 && clock.elapsed() < 2900, qPrintable(QString::number(clock.elapsed())));
    // A press shoots at once and starts the countdown anew: a second without the late start.
    main.press("PhotoMulti");
    QCOMPARE(photos(), 2);
    clock.restart();
    QTRY_COMPARE_WITH_TIMEOUT(photos(), 3, 4000);
    QVERIFY2(clock.elapsed() < 1900, qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(main.tiles().size(), 3);
    QVERIFY(!main.view<TimerWidget>()->isVisible() && !isTicking(main));
}

void TestCaptureCommands::fullDiskRefuses()
{
    MainWindow main;
    for (const char *button : {"Photo", "PhotoMulti", "Movie"}) {
        freeMiB = 300;
        // While there is too little room the live screen, to which the list leads back, warns too.
        Answers answers({"OK", "OK"});
        for (const char *press : {button, "List", "Live"})
            main.press(press);
        QCOMPARE(answers.told().filter("The disk free space is insufficient.").size(), 2);
        QCOMPARE(main.buttons(), QString(errorRow));
        main.press("List");
        freeMiB = 301;
        main.press("Live");
        QCOMPARE(main.buttons(), QString(liveRow));
    }
    QCOMPARE(MainWindow::captures(), QStringList());
}

void TestCaptureCommands::foreignFolderIsRefused()
{
    MainWindow main;
    const QString folder = working().chopped(1);
    QVERIFY(QDir().rmdir(folder) && QFile::link(QDir::homePath(), folder));
    const auto makeWay = qScopeGuard([&folder] { QFile::remove(folder); });
    Answers answers({"OK", "OK"});
    main.press("Photo");
    QCOMPARE(answers.told().size(), 1);
    QVERIFY2(answers.told()[0].startsWith("Nothing can be taken while this folder is a link"),
             qPrintable(answers.told()[0]));
}

void TestCaptureCommands::lossInEveryScreen()
{
    const struct {
        const char *screen;
        QStringList presses;
        int photos;
        int movies; // with their previews
    } screens[] = {
        {"live", {}, 0, 0},
        {"preview", {"Photo"}, 1, 0},
        {"accepted", {"Photo", "Apply"}, 1, 0},
        {"timed series", {"PhotoMulti", "PhotoMulti"}, 1, 0},
        {"grid", {"PhotoMulti", "PhotoMulti", "PhotoMulti"}, 2, 0},
        {"recording", {"Movie"}, 0, 2},
        {"playback", {"Movie", "MovieStop", "MoviePlay"}, 0, 2},
    };
    for (const auto &screen : screens) {
        MainWindow main("AutoShoot=1\nAutoShootTime=30\nContinuShootCount=2\n");
        Answers answers({"OK"});
        for (const QString &button : screen.presses) {
            main.press(button);
            if (button == "Movie") // which needs a length
                QTRY_COMPARE(main.view<TimerWidget>()->text(), QString("00:01"));
        }
        main.devices.pull("cam");
        QTRY_VERIFY2(main.buttons() == errorRow, screen.screen);
        QCOMPARE(answers.told().filter("The video device is invalid.").size(), 1);
        QVERIFY2(main.window->currentMode() == DisplayMode::Live && !isTicking(main), screen.screen);
        QVERIFY2(photos() == screen.photos, screen.screen);
        QVERIFY2(MainWindow::captures("movie*").size() == screen.movies, screen.screen);

        // Again there, the camera comes back by way of the list.
        main.devices.plug("cam");
        main.press("List");
        QVERIFY2(main.button("SwitchPhoto")->isVisible() == (screen.movies > 0), screen.screen);
        QTRY_COMPARE(main.view<LiveVideoWidget>()->getVideoDeviceList().size(), 1);
        main.press("Live");
        QCOMPARE(main.buttons(), QString(liveRow));
        QTRY_VERIFY_WITH_TIMEOUT(!main.view<LiveVideoWidget>()->SaveBmp().isEmpty(), 3000);
    }
}

QTEST_MAIN(TestCaptureCommands)
#include "tst_capturecommands.moc"
