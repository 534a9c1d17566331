#include "capture/livevideowidget.h"
#include "capture/timerwidget.h"
#include "tests/dialog/mainwindow.h"
#include "widgets/moviewidget.h"
#include "widgets/picturelistview.h"
#include "widgets/picturewidget.h"

#include <csignal>
#include <sys/resource.h>
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
static const char *const noCamera =
    "The video device is invalid. Please confirm whether the device is correctly connected. ";
static const char *const manualSeries = "AutoShoot=0\nContinuShootCount=3\n";

class TestCaptureCommands : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { freeMiB = 100000; }
    void failedPhotoShowsNothing();
    void seriesLeftInTheMiddleBeginsAnew();
    void timedSeriesStartsASecondLate();
    void movieIsRecordedAndWatched();
    void fullDiskRefuses();
    void lossInEveryScreen_data();
    void lossInEveryScreen();
    void settingsTakeEffectAtOnce();

private:
    static QString captionOf(const QWidget *view) { return view->findChild<QLabel *>()->text(); }
    static bool isTicking(const MainWindow &main)
    {
        return main.view<TimerWidget>()->findChild<QTimer *>()->isActive();
    }
};

void TestCaptureCommands::failedPhotoShowsNothing()
{
    MainWindow main;
    auto *picture = main.view<PictureWidget>();
    main.press("Photo");
    QCOMPARE(captionOf(picture), QString("Still"));
    main.press("Retry");
    QCOMPARE(MainWindow::captures(), QStringList());
    for (const char *button : {"Photo", "Apply", "Live"})
        main.press(button);
    // Accepting has left the preview on; of the photo before nothing is to be seen in it.
    signal(SIGXFSZ, SIG_IGN);
    rlimit before = {};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit none = {0, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &none);
    main.press("Photo");
    setrlimit(RLIMIT_FSIZE, &before);
    QVERIFY(main.button("Apply")->isVisible());
    QCOMPARE(MainWindow::captures().size(), 1);
    const QImage shown = picture->grab().toImage();
    QCOMPARE(shown.pixelColor(shown.rect().center()), QColor(Qt::black));
}

void TestCaptureCommands::seriesLeftInTheMiddleBeginsAnew()
{
    MainWindow main(manualSeries);
    for (const char *button : {"PhotoMulti", "PhotoMulti", "Live", "PhotoMulti"})
        main.press(button); // the first shot of a series at once
    QCOMPARE(MainWindow::captures("photo*").size(), 3);
    QCOMPARE(main.view<PictureListView>()->nameList().size(), 1);
    QCOMPARE(captionOf(main.view<PictureWidget>()), QString("1/3"));
}

void TestCaptureCommands::timedSeriesStartsASecondLate()
{
    MainWindow main("AutoShoot=1\nAutoShootTime=1\nContinuShootCount=3\n");
    QElapsedTimer clock;
    const auto shots = [] { return MainWindow::captures("photo*").size(); };
    main.press("PhotoMulti");
    clock.start();
    QVERIFY(main.view<TimerWidget>()->text().isEmpty());
    QTRY_COMPARE(main.view<TimerWidget>()->text(), QString("1 second to capture"));
    QTRY_COMPARE_WITH_TIMEOUT(shots(), 1, 4000);
    QVERIFY2(clock.elapsed() > 1800 && clock.elapsed() < 2600, qPrintable(QString::number(clock.elapsed())));
    // A press shoots at once and starts the countdown anew: a second without the late start.
    main.press("PhotoMulti");
    QCOMPARE(shots(), 2);
    clock.restart();
    QTRY_COMPARE_WITH_TIMEOUT(shots(), 3, 4000);
    QVERIFY2(clock.elapsed() < 1600, qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(main.tiles().size(), 3);
    QVERIFY(!main.view<TimerWidget>()->isVisible() && !isTicking(main));

    // The list, which a full disk leaves as the way out of a series, ends it too.
    main.press("Live");
    main.press("PhotoMulti");
    freeMiB = 300;
    Answers answers({"OK"});
    main.press("PhotoMulti");
    QVERIFY(isTicking(main));
    main.press("List");
    QVERIFY(!isTicking(main));
}

void TestCaptureCommands::movieIsRecordedAndWatched()
{
    MainWindow main;
    main.press("Movie");
    auto *time = main.view<TimerWidget>();
    QCOMPARE(time->text(), QString("00:00"));
    QTRY_COMPARE_WITH_TIMEOUT(time->text(), QString("00:02"), 3500);
    emit time->movieTimeOver(); // the limit ends it as the button does
    emit time->movieTimeOver(); // and coming again does no harm
    const QStringList movie = MainWindow::captures("movie*");
    QCOMPARE(movie.size(), 2);
    QCOMPARE(movie.last(), WebcamUtil::previewName(movie.first()));

    auto *player = main.view<MovieWidget>();
    QVERIFY(player->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(player->isPaused(), 5000);
    main.press("MoviePlay");
    const QString total = QString("/00:0%1").arg(player->totalTime() / 1000);
    QTRY_COMPARE(time->text(), "00:01" + total);
    main.press("MoviePause");
    QTRY_VERIFY(player->isPaused() && !isTicking(main));
    for (int showing = 0; showing < 2; ++showing) { // to the end, and once more from the start
        main.press("MoviePlay");
        QTRY_VERIFY(main.button("MoviePause")->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(main.button("MoviePlay")->isVisible(), 6000);
    }
}

void TestCaptureCommands::fullDiskRefuses()
{
    MainWindow main;
    freeMiB = 300;
    for (const char *button : {"Photo", "PhotoMulti", "Movie"}) {
        freeMiB = 300;
        // While there is too little room the live screen, to which the list leads back, warns too.
        Answers answers({"OK", "OK"});
        for (const char *press : {button, "List", "Live"})
            main.press(press);
        const QString warning = "The disk free space is insufficient.\nTaking a picture is discontinued. "
                                "Please secure the free space. ";
        QCOMPARE(answers.told(), QStringList({warning, warning}));
        QCOMPARE(main.buttons(), QString(errorRow));
        main.press("List");
        freeMiB = 301;
        main.press("Live");
        QCOMPARE(main.buttons(), QString(liveRow));
    }
    QCOMPARE(MainWindow::captures(), QStringList());
}

void TestCaptureCommands::lossInEveryScreen_data()
{
    QTest::addColumn<QStringList>("presses");
    QTest::addColumn<QString>("files");
    QTest::newRow("live") << QStringList{} << "";
    QTest::newRow("preview") << QStringList{"Photo"} << "photo";
    QTest::newRow("accepted") << QStringList{"Photo", "Apply"} << "photo";
    QTest::newRow("series") << QStringList{"PhotoMulti"} << "photo";
    QTest::newRow("timed series") << QStringList{"PhotoMulti", "PhotoMulti"} << "photo";
    QTest::newRow("grid") << QStringList{"PhotoMulti", "PhotoMulti", "PhotoMulti"} << "photo photo photo";
    QTest::newRow("recording") << QStringList{"Movie"} << "movie movie";
    QTest::newRow("playback") << QStringList{"Movie", "MovieStop", "MoviePlay"} << "movie movie";
    QTest::newRow("settings") << QStringList{"Settings"} << "";
}

void TestCaptureCommands::lossInEveryScreen()
{
    QFETCH(QStringList, presses);
    QFETCH(QString, files);
    const bool isTimed = QTest::currentDataTag() == QByteArray("timed series");
    MainWindow main(isTimed ? "AutoShoot=1\nAutoShootTime=30\n" : manualSeries);
    Answers answers({"OK"});
    if (presses == QStringList{"Settings"}) {
        auto *settings = main.window->findChild<Setting *>();
        QTimer::singleShot(0, settings, [&] { main.devices.pull("cam"); });
        // Left once the warning has been answered.
        QTimer leave;
        connect(&leave, &QTimer::timeout, settings, [&] {
            if (main.buttons() == errorRow)
                settings->reject();
        });
        leave.start(50);
        main.press("Settings");
    } else {
        for (const QString &button : presses) {
            main.press(button);
            if (button == "Movie") // which needs a length
                QTRY_COMPARE(main.view<TimerWidget>()->text(), QString("00:01"));
        }
        main.devices.pull("cam");
    }
    QTRY_COMPARE(main.buttons(), QString(errorRow));
    QCOMPARE(answers.told(), QStringList{noCamera});
    QCOMPARE(main.window->currentMode(), DisplayMode::Live);
    QVERIFY(!main.view<LiveVideoWidget>()->isVisible() && !main.view<PictureWidget>()->isVisible() &&
            !main.view<MovieWidget>()->isVisible() && !main.view<TimerWidget>()->isVisible() &&
            !isTicking(main));
    QStringList kinds;
    for (const QString &name : MainWindow::captures())
        kinds << name.left(5);
    QCOMPARE(kinds.join(' '), files);

    // Again there, the camera comes back by way of the list.
    main.devices.plug("cam");
    main.press("List");
    QTRY_COMPARE(main.view<LiveVideoWidget>()->getVideoDeviceList().size(), 1);
    main.press("Live");
    QCOMPARE(main.buttons(), QString(liveRow));
    QTRY_VERIFY_WITH_TIMEOUT(!main.view<LiveVideoWidget>()->SaveBmp().isEmpty(), 3000);
}

void TestCaptureCommands::settingsTakeEffectAtOnce()
{
    MainWindow main("PhotoPreview=1\n");
    auto *settings = main.window->findChild<Setting *>();
    for (const bool accepted : {false, true}) {
        const auto uncheckAndLeave = [&] {
            settings->findChild<QAbstractButton *>("chbPhotoPreview")->setChecked(false);
            settings->done(accepted ? QDialog::Accepted : QDialog::Rejected);
        };
        QMetaObject::invokeMethod(settings, uncheckAndLeave, Qt::QueuedConnection);
        main.press("Settings");
        main.press("Photo");
        QCOMPARE(main.button("Apply")->isVisible(), !accepted);
        main.press(accepted ? "Live" : "Retry");
        QCOMPARE(main.buttons(), QString(liveRow));
    }
}

QTEST_MAIN(TestCaptureCommands)
#include "tst_capturecommands.moc"
