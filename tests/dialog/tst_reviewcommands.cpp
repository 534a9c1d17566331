#include "capture/timerwidget.h"
#include "dialog/gridlayout.h"
#include "dialog/waitemsgdlg.h"
#include "tests/dialog/mainwindow.h"
#include "widgets/moviewidget.h"
#include "widgets/picturelistview.h"

#include <QFileDialog>
#include <QLineEdit>

class TestReviewCommands : public QObject
{
    Q_OBJECT

private slots:
    void gridPlaces();
    void listKeepsTheLatest();
    void photosAreChosenShownAndPasted();
    void movieIsChosenShownAndPasted();
    void folderIsLoaded();
    void waitDialogLastsAsLongAsTheWork();

private:
    static void makePhoto(const QString &path);
    static QStringList makePhotos(int count, const QString &folder = WebcamUtil::getTemporaryPath());
    static void choose(const MainWindow &main, int row);
    static QStringList takeRequest();
    static void load(const MainWindow &main, const QString &folder);
};

void TestReviewCommands::makePhoto(const QString &path)
{
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(Qt::white);
    QVERIFY(image.save(path, "PNG"));
}

// Named in the order of their making.
QStringList TestReviewCommands::makePhotos(int count, const QString &folder)
{
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names << QString("photo%1.png").arg(i, 3, 10, QLatin1Char('0'));
        makePhoto(folder + "/" + names.last());
    }
    return names;
}

void TestReviewCommands::choose(const MainWindow &main, int row)
{
    auto *list = main.view<PictureListView>();
    QListWidgetItem *item = list->item(row);
    list->scrollToItem(item);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, list->visualItemRect(item).center());
}

// The lines of the only request; the request is gone then.
QStringList TestReviewCommands::takeRequest()
{
    const QDir folder(WebcamUtil::getTemporaryPath() + "/tmp");
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden);
    if (names.size() != 1 || !QRegularExpression("^PUTVXS\\d{14}$").match(names.first()).hasMatch())
        return {"requests: " + names.join(' ')};
    QFile file(folder.filePath(names.first()));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QString text = QString::fromUtf8(file.readAll());
    file.remove();
    return text.endsWith('\n') ? text.chopped(1).split('\n') : QStringList{"cut: " + text};
}

void TestReviewCommands::gridPlaces()
{
    // In an area of 933x700 at 45, worked out by hand.
    const QRect area(45, 0, 933, 700);
    const auto rects = [](const QVector<QPoint> &corners, const QSize &size) {
        QVector<QRect> places;
        for (const QPoint &corner : corners)
            places << QRect(corner, size);
        return places;
    };
    const QSize half(466, 350);
    const QSize third(311, 233);
    QCOMPARE(gridTiles(area, 0), rects({}, half));
    QCOMPARE(gridTiles(area, 1), QVector<QRect>{area});
    QCOMPARE(gridTiles(area, 2), rects({{45, 175}, {511, 175}}, half));
    QCOMPARE(gridTiles(area, 4), rects({{45, 0}, {511, 0}, {45, 350}, {511, 350}}, half));
    const QVector<QPoint> five = {{45, 117}, {356, 117}, {667, 117}, {45, 350}, {356, 350}};
    QCOMPARE(gridTiles(area, 3), rects({{45, 233}, {356, 233}, {667, 233}}, third));
    QCOMPARE(gridTiles(area, 5), rects(five, third));
    const QVector<QPoint> seven = {{45, 0}, {356, 0}, {667, 0}, {45, 233}, {356, 233}, {667, 233}, {45, 466}};
    QCOMPARE(gridTiles(area, 7), rects(seven, third));
}

void TestReviewCommands::listKeepsTheLatest()
{
    MainWindow main;
    QStringList photos = makePhotos(60);
    QStringList previews;
    for (int i = 0; i < 30; ++i) {
        previews << QString("movie%1tmp.png").arg(i, 2, 10, QLatin1Char('0'));
        makePhoto(WebcamUtil::getTemporaryPath() + "/" + previews.last());
    }
    main.press("List");
    QCOMPARE(main.view<PictureListView>()->nameList(), photos.mid(10));
    main.press("SwitchMovie");
    QCOMPARE(main.view<PictureListView>()->nameList(), previews.mid(5));
    main.press("SwitchPhoto");
    QCOMPARE(main.view<PictureListView>()->nameList(), photos.mid(10));
}

void TestReviewCommands::photosAreChosenShownAndPasted()
{
    MainWindow main("PhotoPreview=0\n");
    const QString folder = WebcamUtil::getTemporaryPath();
    const QStringList head = {"0", "933x700", folder};
    main.press("Photo");
    const QString taken = MainWindow::captures().first();
    main.press("PutPhoto");
    QCOMPARE(takeRequest(), head + QStringList(taken));

    const QString forged = "photo1\n1.png"; // would be two lines
    const QString arabic = QString::fromUtf8("photoصورة😀.png");
    for (const QString &name : {QString("photo0.png"), forged, arabic})
        makePhoto(folder + "/" + name);
    main.press("List");
    choose(main, 3);
    QVERIFY(main.button("Show")->isEnabled());
    auto *preview = main.view<PictureWidget>();
    QCOMPARE(preview->fileName(), arabic);
    const auto middle = [preview] { return preview->grab().toImage().pixelColor(preview->rect().center()); };
    QCOMPARE(middle(), QColor(Qt::white));
    choose(main, 3);
    QVERIFY(!main.button("Show")->isEnabled());
    QCOMPARE(middle(), QColor(Qt::black));
    for (int row : {3, 1, 0, 2})
        choose(main, row);
    main.press("Show");
    QCOMPARE(main.tiles().size(), 4);
    QCOMPARE(main.buttons(), QString("Live+ PutPhoto+ List+ Close+"));
    main.press("PutPhoto");
    QCOMPARE(takeRequest(), head + QStringList({arabic, "photo0.png", taken}));

    // The button for going back comes under the finger, and under the key, that zoomed.
    const auto keyOn = [&](PictureWidget *tile, const QString &name) {
        for (auto *button : tile->findChildren<CStretchBitmapButton *>()) {
            if (button->accessibleName() == name)
                button->setFocus(Qt::TabFocusReason);
        }
        QTest::keyClick(main.window->focusWidget(), Qt::Key_Space);
    };
    keyOn(main.tiles().at(1), "Zoom");
    QCOMPARE(main.tiles().size(), 1);
    QCOMPARE(main.tiles().first()->geometry(), QRect(45, 0, 933, 700));
    QCOMPARE(main.window->focusWidget()->accessibleName(), QString("Back"));
    // A second request within the second takes the place of the first.
    QTRY_VERIFY(QTime::currentTime().msec() < 300);
    main.press("PutPhoto");
    main.press("PutPhoto");
    QCOMPARE(takeRequest(), head + QStringList("photo0.png"));
    keyOn(main.tiles().first(), "Back");
    QCOMPARE(main.tiles().size(), 4);
    QCOMPARE(main.tiles().first()->fileName(), arabic);
}

void TestReviewCommands::movieIsChosenShownAndPasted()
{
    MainWindow main;
    main.press("Movie");
    QTRY_COMPARE(main.view<TimerWidget>()->text(), QString("00:01"));
    main.press("MovieStop");
    const QString movie = MainWindow::captures("*.mov").first();
    main.press("List");
    choose(main, 0);
    main.press("Show");
    QCOMPARE(main.window->currentMode(), DisplayMode::Movie);
    QTRY_VERIFY_WITH_TIMEOUT(main.view<MovieWidget>()->totalTime() > 500, 5000);
    main.window->OnVXS();
    QCOMPARE(takeRequest(), QStringList({"1", "XXX", WebcamUtil::getTemporaryPath(), "/" + movie}));
}

// The wait dialog stands when this returns; the work begins afterwards.
void TestReviewCommands::load(const MainWindow &main, const QString &folder)
{
    QTimer look;
    connect(&look, &QTimer::timeout, [&] {
        auto *chooser = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!chooser)
            return;
        if (folder.isEmpty()) {
            chooser->reject();
            return;
        }
        auto *name = chooser->findChild<QLineEdit *>("fileNameEdit");
        name->setText(folder);
        name->setFocus();
        QTest::keyClick(name, Qt::Key_Return);
    });
    look.start(50); // until it is accepted: it may still be reading the folder
    main.press("Load");
}

void TestReviewCommands::folderIsLoaded()
{
    MainWindow main;
    const QString working = WebcamUtil::getTemporaryPath();
    const QString earlier = QDir::homePath() + "/earlier";
    QDir().mkpath(earlier);
    makePhotos(3, earlier);
    for (const char *name : {"notes.txt", "movie1.mov", "movie1tmp.png", "movie2.mov"})
        MainWindow::writeFile(earlier + "/" + name, name);
    MainWindow::writeFile(working + "/photo001.png", "kept");
    main.press("List");
    load(main, QString());
    QVERIFY(!main.view<CWaiteMsgDlg>()->isVisible());
    const auto loadAndRead = [&](const QString &told) {
        Answers answers({"OK"});
        load(main, earlier);
        if (told == "Vanished")
            QDir(earlier).removeRecursively();
        QTRY_COMPARE(answers.told(), QStringList(told == "Vanished" ? "Failed." : told));
    };
    loadAndRead("Complete");
    QCOMPARE(MainWindow::captures(), QStringList({"photo000.png", "photo001.png", "photo002.png"}));
    QCOMPARE(QFileInfo(working + "/photo001.png").size(), 4);
    QCOMPARE(main.view<PictureListView>()->nameList().size(), 3);

    // Movies come with their previews, and the list of them still leads back to the photos.
    main.press("SwitchMovie");
    loadAndRead("Complete");
    QCOMPARE(MainWindow::captures("movie*"), QStringList({"movie1.mov", "movie1tmp.png"}));
    QCOMPARE(main.view<PictureListView>()->nameList(), QStringList("movie1tmp.png"));
    main.press("SwitchPhoto");

    // A copy that cannot be made is told, and the others are made all the same.
    QFile::remove(working + "/photo000.png");
    QVERIFY(QFile::link("/nowhere", working + "/photo000.png"));
    QFile::remove(working + "/photo002.png");
    loadAndRead("Failed.");
    QVERIFY(QFile::exists(working + "/photo002.png"));
    loadAndRead("Vanished");
}

void TestReviewCommands::waitDialogLastsAsLongAsTheWork()
{
    CWaiteMsgDlg dialog;
    const auto *text = dialog.findChild<QLabel *>();
    dialog.setLoadingTexts("Loading it.", "Loaded it.", "Could not load it.");
    QSignalSpy starts(&dialog, &CWaiteMsgDlg::OnShow);
    for (bool success : {true, false}) {
        dialog.show();
        QCOMPARE(text->text(), QString("Please Waite.."));
        QCOMPARE(text->accessibleDescription(), QString("Loading it."));
        QVERIFY(starts.wait(1000));
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.close());
        dialog.comp(success);
        // Brought back by the window manager.
        QShowEvent again;
        QSpontaneKeyEvent::setSpontaneous(&again);
        qApp->notify(&dialog, &again);
        QVERIFY(!starts.wait(150));
        QCOMPARE(text->text(), QString(success ? "Complete" : "Failed."));
        QCOMPARE(text->accessibleDescription(), QString(success ? "Loaded it." : "Could not load it."));
        QTest::mouseClick(dialog.findChild<QPushButton *>(), Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
    }
    QCOMPARE(starts.count(), 2);
}

QTEST_MAIN(TestReviewCommands)
#include "tst_reviewcommands.moc"
