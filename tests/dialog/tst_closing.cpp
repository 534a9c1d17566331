#include "tests/dialog/mainwindow.h"

class TestClosing : public QObject
{
    Q_OBJECT

private slots:
    void answers_data();
    void answers();
    void nothingTakenIsNotAskedFor();
    void closingFromOutsideKeepsEverything();
    void closingUnderAMessageIsSafe();
};

void TestClosing::answers_data()
{
    QTest::addColumn<QStringList>("presses");
    QTest::addColumn<bool>("canSave");
    QTest::addColumn<int>("saved");
    QTest::addColumn<int>("kept"); // in the working folder
    QTest::addColumn<bool>("closes");
    QTest::newRow("yes") << QStringList{"Yes"} << true << 2 << 0 << true;
    QTest::newRow("no") << QStringList{"No"} << true << 0 << 0 << true;
    QTest::newRow("cancel") << QStringList{"Cancel"} << true << 0 << 2 << false;
    QTest::newRow("yes, but it cannot be saved") << QStringList{"Yes", "OK"} << false << 0 << 2 << true;
}

void TestClosing::answers()
{
    QFETCH(QStringList, presses);
    QFETCH(bool, canSave);
    QFETCH(int, saved);
    QFETCH(int, kept);
    QFETCH(bool, closes);
    const QString folder = QDir::homePath() + "/lessons";
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    if (!canSave)
        MainWindow::writeFile(folder + "/VeltrixCamera", "in the way");
    MainWindow main("PhotoPreview=0\nSaveDirectory=" + folder + "\n");
    for (int photo = 0; photo < 2; ++photo) {
        main.press("Photo");
        main.press("Live");
    }
    Answers answers(presses);
    main.press("Close");
    QCOMPARE(answers.told().size(), presses.size());
    if (!canSave)
        QCOMPARE(answers.told().last(), QString("Save failed."));
    QCOMPARE(main.window->isVisible(), !closes);
    const QString today = folder + "/VeltrixCamera/" + QDate::currentDate().toString("yyyyMMdd");
    QCOMPARE(MainWindow::filesIn(today).size(), saved);
    QCOMPARE(MainWindow::captures().size(), kept);
}

void TestClosing::nothingTakenIsNotAskedFor()
{
    MainWindow main;
    Answers answers({"Cancel"});
    main.press("Close");
    QVERIFY(!main.window->isVisible());
    QCOMPARE(answers.told(), QStringList());
}

void TestClosing::closingFromOutsideKeepsEverything()
{
    MainWindow main;
    main.press("Movie");
    QTest::qWait(1200);
    main.window->close();
    const QStringList kept = MainWindow::captures();
    QCOMPARE(kept.size(), 2);
    // The movie was finished: its index stands where players look for it.
    const qint64 size = QFileInfo(WebcamUtil::getTemporaryPath() + "/" + kept.first()).size();
    QVERIFY(size > 0);
    QTest::qWait(600);
    QCOMPARE(QFileInfo(WebcamUtil::getTemporaryPath() + "/" + kept.first()).size(), size);
}

void TestClosing::closingUnderAMessageIsSafe()
{
    MainWindow main;
    main.devices.pull("mic");
    LiveVideoData probe;
    QTRY_VERIFY(!probe.IsValidAudioDevice());
    QTimer::singleShot(500, main.window.get(), [&] {
        QVERIFY(QApplication::activeModalWidget());
        main.window->close();
        static_cast<QDialog *>(QApplication::activeModalWidget())->accept();
    });
    main.press("Movie"); // its warning belongs to the live view, which closing takes away
    QVERIFY(!main.window->isVisible());
}

QTEST_MAIN(TestClosing)
#include "tst_closing.moc"
