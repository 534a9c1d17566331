#include "capture/timerwidget.h"
#include "tests/dialog/mainwindow.h"

#include <QProcess>

#include <functional>

// What happens while the disk takes what is saved: this one is found before the C library's.
static std::function<void()> duringSync;
extern "C" int fsync(int)
{
    if (duringSync)
        duringSync();
    return 0;
}

class TestClosing : public QObject
{
    Q_OBJECT

private slots:
    void failedSaveKeepsEverything();
    void pressDuringTheSaveIsDropped();
    void closingFromOutsideKeepsEverything();
    void closingUnderAMessageIsSafe();
};

void TestClosing::failedSaveKeepsEverything()
{
    const QString folder = QDir::homePath() + "/lessons";
    QDir().mkpath(folder);
    MainWindow::writeFile(folder + "/VeltrixCamera", "in the way");
    MainWindow main("SaveDirectory=" + folder + "\n");
    for (const char *button : {"Photo", "Apply", "Live"})
        main.press(button);
    Answers answers({"Yes", "OK"});
    main.press("Close");
    QCOMPARE(answers.told().value(1), QString("Save failed."));
    QVERIFY(!main.window->isVisible());
    QCOMPARE(MainWindow::captures().size(), 1);
}

void TestClosing::pressDuringTheSaveIsDropped()
{
    MainWindow main;
    for (const char *button : {"Photo", "Apply", "Live"})
        main.press(button);
    const QPoint photo = main.button("Photo")->mapToGlobal(main.button("Photo")->rect().center());
    int clicked = -1;
    duringSync = [&] {
        clicked = QProcess::execute(
            "xdotool", {"mousemove", QString::number(photo.x()), QString::number(photo.y()), "click", "1"});
    };
    Answers answers({"Yes"});
    main.press("Close");
    duringSync = nullptr;
    QCOMPARE(clicked, 0);
    QTest::qWait(0); // brings the click
    QVERIFY(!main.window->isVisible());
    QCOMPARE(MainWindow::captures(), QStringList());
}

void TestClosing::closingFromOutsideKeepsEverything()
{
    MainWindow main;
    main.press("Movie");
    QTRY_COMPARE(main.view<TimerWidget>()->text(), QString("00:01"));
    main.window->close();
    QCOMPARE(MainWindow::captures().size(), 2);
    QProcess player;
    player.start("ffprobe", {"-v", "error", "-show_entries", "format=duration", "-of", "csv=p=0",
                             WebcamUtil::getTemporaryPath() + "/" + MainWindow::captures().first()});
    QVERIFY(player.waitForFinished());
    QVERIFY(player.readAllStandardOutput().trimmed().toDouble() > 0.5);
}

void TestClosing::closingUnderAMessageIsSafe()
{
    MainWindow main;
    main.devices.pull("mic");
    LiveVideoData probe;
    QTRY_VERIFY(!probe.IsValidAudioDevice());
    // The message's own answer comes when the window is closed already.
    Answers answers({"OK"});
    QTimer::singleShot(0, main.window.get(), [&] {
        QVERIFY(QTest::qWaitFor([] { return QApplication::activeModalWidget(); }));
        main.window->close();
    });
    main.press("Movie"); // its warning belongs to the live view, which closing takes away
    QVERIFY(!main.window->isVisible());
}

QTEST_MAIN(TestClosing)
#include "tst_closing.moc"
