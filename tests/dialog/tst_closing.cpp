#include "capture/livevideowidget.h"
#include "capture/timerwidget.h"
#include "tests/dialog/mainwindow.h"
#include "tests/support/smalldisk.h"

#include <QProcess>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

// What happens while the disk takes a file or the names in a folder: these are found before the C library's.
// GStreamer's threads ask, too.
static std::mutex syncMutex;
static std::function<bool()> duringSync;
static void setDuringSync(const std::function<bool()> &action)
{
    const std::lock_guard<std::mutex> lock(syncMutex);
    duringSync = action;
}
static std::function<bool()> actionDuringSync()
{
    const std::lock_guard<std::mutex> lock(syncMutex);
    return duringSync;
}
extern "C" int fsync(int)
{
    const auto action = actionDuringSync();
    if (!action || action())
        return 0;
    errno = EIO;
    return -1;
}
extern "C" int fdatasync(int file)
{
    return fsync(file);
}

class TestClosing : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { setDuringSync(nullptr); }
    void vanishingSaveFolderLosesNothing();
    void pressDuringTheSaveIsDropped();
    void movieIsSavedWithItsEnd();
    void brokenMovieIsToldOnce();
    void closingUnderAMessageIsSafe();
    void nothingIsAskedAtALogOut();
};

// A stick is pulled out when the first file stands on it and its name is about to be made safe.
void TestClosing::vanishingSaveFolderLosesNothing()
{
    const SmallDisk disk(10);
    if (!disk.isMounted())
        QSKIP("a small file system takes root to mount");
    MainWindow main("SaveDirectory=" + disk.path("") + "\n");
    const QStringList names = {"movie1.mov", "movie1tmp.png", "photo1.png", "photo2.png"};
    for (const QString &name : names)
        MainWindow::writeFile(WebcamUtil::getTemporaryPath() + "/" + name, name.toUtf8());
    int syncs = 0;
    setDuringSync([&] { return ++syncs < 2 || QProcess::execute("umount", {"-l", disk.path("")}) != 0; });
    Answers answers({"Yes", "OK"});
    main.press("Close");
    QCOMPARE(syncs, 2);
    QCOMPARE(answers.told().value(1), QString("Save failed."));
    QVERIFY(!main.window->isVisible());
    for (const QString &name : names) {
        QFile file(WebcamUtil::getTemporaryPath() + "/" + name);
        QVERIFY2(file.open(QIODevice::ReadOnly) && file.readAll() == name.toUtf8(), qPrintable(name));
    }
}

void TestClosing::pressDuringTheSaveIsDropped()
{
    MainWindow main;
    for (const char *button : {"Photo", "Apply", "Live"})
        main.press(button);
    const QPoint photo = main.button("Photo")->mapToGlobal(main.button("Photo")->rect().center());
    int clicked = -1;
    setDuringSync([&] {
        clicked = QProcess::execute(
            "xdotool", {"mousemove", QString::number(photo.x()), QString::number(photo.y()), "click", "1"});
        return true;
    });
    Answers answers({"Yes"});
    main.press("Close");
    QCOMPARE(clicked, 0);
    QTest::qWait(0); // brings the click
    QVERIFY(!main.window->isVisible());
    QCOMPARE(MainWindow::captures(), QStringList());
}

// The disk is so slow that a movie that was stopped is not yet finished when it is to be saved elsewhere.
void TestClosing::movieIsSavedWithItsEnd()
{
    const SmallDisk disk(40);
    if (!disk.isMounted())
        QSKIP("a small file system takes root to mount");
    MainWindow main("SaveDirectory=" + disk.path("") + "\n");
    setDuringSync([] {
        std::this_thread::sleep_for(std::chrono::seconds(1));
        return true;
    });
    main.press("Movie");
    QTRY_COMPARE(main.view<TimerWidget>()->text(), QString("00:03"));
    main.press("MovieStop");
    Answers answers({"Yes"});
    main.press("Close");
    QCOMPARE(MainWindow::captures(), QStringList());
    QProcess player;
    player.start(
        "sh", {"-c", "ffprobe -v error -show_entries format=duration -of csv=p=0 " + disk.path("*/*/*.mov")});
    QVERIFY(player.waitForFinished());
    const double length = player.readAllStandardOutput().trimmed().toDouble();
    QVERIFY2(length > 2.8, qPrintable(QString::number(length)));
}

// While it is being finished the disk fails, or hangs for longer than anybody waits.
void TestClosing::brokenMovieIsToldOnce()
{
    for (const bool hangs : {false, true}) {
        // The disk may still be asked when this is over.
        const auto isToAnswer = std::make_shared<std::atomic<bool>>(!hangs);
        MainWindow main;
        main.press("Movie");
        QTRY_COMPARE(main.view<TimerWidget>()->text(), QString("00:02"));
        setDuringSync([isToAnswer] {
            while (!*isToAnswer)
                std::this_thread::yield();
            return false;
        });
        Answers answers({"OK", "OK"});
        main.press("MovieStop");
        // Given up after ten seconds in which the disk took nothing, once it has begun to hang.
        QTRY_COMPARE_WITH_TIMEOUT(answers.told().size(), 1, 30000);
        QVERIFY2(answers.told().first().startsWith("The disk"), qPrintable(answers.told().first()));
        QVERIFY(main.button("Live")->isEnabled());
        *isToAnswer = true;
        main.press("Live");
        QTRY_VERIFY(!main.view<LiveVideoWidget>()->isFinishingMovie());
        QCOMPARE(answers.told().size(), 1);
        setDuringSync(nullptr); // the next movie begins on a good disk
    }
}

void TestClosing::closingUnderAMessageIsSafe()
{
    MainWindow main;
    main.devices.pull("mic");
    LiveVideoData probe;
    QTRY_VERIFY(!probe.IsValidAudioDevice());
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        if (QApplication::activeModalWidget())
            main.window->close();
    });
    look.start(10);
    // The message's own answer comes when the window is closed already.
    Answers answers({"OK"});
    main.press("Movie"); // its warning belongs to the live view, which closing takes away
    QVERIFY(!main.window->isVisible());
}

// Last, since it ends the application. Not even when the camera goes while the lesson is being saved: nobody
// is there, and the rest must be saved.
void TestClosing::nothingIsAskedAtALogOut()
{
    const SmallDisk disk(40);
    if (!disk.isMounted())
        QSKIP("a small file system takes root to mount");
    MainWindow main("SaveDirectory=" + disk.path("") + "\n");
    for (const char *button : {"Photo", "Apply", "Live"})
        main.press(button);
    std::atomic<bool> isLost{false};
    QObject::connect(main.view<LiveVideoWidget>(), &LiveVideoWidget::disconnectDevice,
                     [&] { isLost = true; });
    main.devices.pull("cam");
    setDuringSync([&] {
        while (!isLost)
            std::this_thread::yield();
        return true;
    });
    Answers answers({"OK"});
    main.window->saveAndLeave();
    QVERIFY(isLost);
    QCOMPARE(answers.told(), QStringList());
    QCOMPARE(MainWindow::captures(), QStringList());
    QVERIFY(!main.window->isVisible());
}

QTEST_MAIN(TestClosing)
#include "tst_closing.moc"
