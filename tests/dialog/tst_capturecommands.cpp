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

static const char *const kLiveRow = "Live+ Photo+ PhotoMulti+ Movie+ List+ Settings+ Close+";
static const char *const kErrorRow = "Live Photo PhotoMulti Movie List+ Settings Close+";
static const char *const kNoCamera =
    "The video device is invalid. Please confirm whether the device is correctly connected. ";
static const char *const kManualSeries = "AutoShoot=0\nContinuShootCount=3\n";

class TestCaptureCommands : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { freeMiB = 100000; }
    void photoIsKeptOrRetaken();
    void failedPhotoShowsNothing();
    void seriesByHandEndsInItsGrid();
    void timedSeriesStartsASecondLate();
    void movieIsRecordedAndWatched();
    void fullDiskRefuses();
    void lossInEveryScreen_data();
    void lossInEveryScreen();
    void settingsTakeEffectAtOnce();

private:
    static QString captionOf(const QWidget *view) { return view->findChild<QLabel *>()->text(); }
};

void TestCaptureCommands::photoIsKeptOrRetaken()
{
    MainWindow main;
    main.press("Photo");
    QCOMPARE(MainWindow::captures("photo*.png").size(), 1);
    QCOMPARE(captionOf(main.view<PictureWidget>()), QString("Still"));
    main.press("Retry");
    QCOMPARE(MainWindow::captures(), QStringList());
    main.press("Photo");
    main.press("Apply");
    const QStringList kept = MainWindow::captures("photo*.png");
    QCOMPARE(kept, QStringList{main.view<PictureWidget>()->fileName()});
    // Accepting has left the preview on.
    main.press("Live");
    main.press("Photo");
    QVERIFY(main.button("Apply")->isVisible());
}

void TestCaptureCommands::failedPhotoShowsNothing()
{
    MainWindow main("PhotoPreview=0\n");
    main.press("Photo");
    main.press("Live");
    signal(SIGXFSZ, SIG_IGN);
    rlimit before = {};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit none = {0, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &none);
    main.press("Photo");
    setrlimit(RLIMIT_FSIZE, &before);
    QCOMPARE(MainWindow::captures().size(), 1);
    QCOMPARE(main.view<PictureWidget>()->fileName(), QString());
    // Beside the caption nothing is to be seen of the photo before.
    const QImage shown = main.view<PictureWidget>()->grab().toImage();
    QCOMPARE(shown.pixelColor(shown.rect().center()), QColor(Qt::black));
}

void TestCaptureCommands::seriesByHandEndsInItsGrid()
{
    MainWindow main(kManualSeries);
    main.press("PhotoMulti"); // the first shot at once
    for (int shots = 1; shots < 3; ++shots) {
        QCOMPARE(MainWindow::captures("photo*").size(), shots);
        QCOMPARE(captionOf(main.view<PictureWidget>()), QString("%1/3").arg(shots));
        QCOMPARE(main.view<PictureListView>()->nameList().size(), shots);
        main.press("PhotoMulti");
    }
    QCOMPARE(main.tiles().size(), 3);
    QVERIFY(!main.view<LiveVideoWidget>()->isVisible() && !main.view<PictureListView>()->isVisible());
    main.press("Live");
    QCOMPARE(main.buttons(), QString(kLiveRow));
    QTRY_COMPARE(main.tiles().size(), 0);

    // Leaving in the middle ends the series; the next one begins anew.
    main.press("PhotoMulti");
    main.press("Live");
    main.press("PhotoMulti");
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
    QVERIFY(!main.view<TimerWidget>()->isVisible());
    QTest::qWait(1500);
    QCOMPARE(shots(), 3);
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
    QTRY_COMPARE(time->text(), QString("00:01/00:02"));
    main.press("MoviePause");
    QTRY_VERIFY(player->isPaused());
    const qint64 pausedAt = player->currentTime();
    QTest::qWait(700);
    QCOMPARE(player->currentTime(), pausedAt);
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
        Answers answers({"OK"});
        main.press(button);
        QCOMPARE(answers.told(),
                 QStringList{"The disk free space is insufficient.\nTaking a picture is discontinued. "
                             "Please secure the free space. "});
        QCOMPARE(main.buttons(), QString(kErrorRow));
        // The list is the way back; while there is too little room the live screen warns once.
        main.press("List");
        Answers again({"OK"});
        main.press("Live");
        QCOMPARE(again.told().size(), 1);
        QCOMPARE(main.buttons(), QString(kErrorRow));
        main.press("List");
        freeMiB = 301;
        main.press("Live");
        QCOMPARE(main.buttons(), QString(kLiveRow));
        freeMiB = 300;
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
    QTest::newRow("grid") << QStringList{"PhotoMulti", "PhotoMulti", "PhotoMulti"} << "photo photo photo";
    QTest::newRow("recording") << QStringList{"Movie"} << "movie movie";
    QTest::newRow("playback") << QStringList{"Movie", "MovieStop", "MoviePlay"} << "movie movie";
    QTest::newRow("settings") << QStringList{"Settings"} << "";
}

void TestCaptureCommands::lossInEveryScreen()
{
    QFETCH(QStringList, presses);
    QFETCH(QString, files);
    MainWindow main(kManualSeries);
    Answers answers({"OK"});
    const auto lose = [&] {
        QTest::qWait(1200); // a movie needs a length
        main.devices.pull("cam");
    };
    if (presses == QStringList{"Settings"}) {
        auto *settings = main.window->findChild<Setting *>();
        QTimer::singleShot(0, settings, lose);
        // Left once the warning has been answered.
        QTimer leave;
        connect(&leave, &QTimer::timeout, settings, [&] {
            if (main.buttons() == kErrorRow)
                settings->reject();
        });
        leave.start(50);
        main.press("Settings");
    } else {
        for (const QString &button : presses)
            main.press(button);
        lose();
    }
    QTRY_COMPARE(main.buttons(), QString(kErrorRow));
    QCOMPARE(answers.told(), QStringList{kNoCamera});
    QCOMPARE(main.window->currentMode(), DisplayMode::Live);
    QVERIFY(!main.view<LiveVideoWidget>()->isVisible() && !main.view<PictureWidget>()->isVisible() &&
            !main.view<MovieWidget>()->isVisible() && !main.view<TimerWidget>()->isVisible());
    QStringList kinds;
    for (const QString &name : MainWindow::captures())
        kinds << name.left(5);
    QCOMPARE(kinds.join(' '), files);

    // Again there, the camera comes back by way of the list.
    main.devices.plug("cam");
    main.press("List");
    QTRY_COMPARE(main.view<LiveVideoWidget>()->getVideoDeviceList().size(), 1);
    main.press("Live");
    QCOMPARE(main.buttons(), QString(kLiveRow));
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
        QCOMPARE(main.buttons(), QString(kLiveRow));
    }
}

QTEST_MAIN(TestCaptureCommands)
#include "tst_capturecommands.moc"
