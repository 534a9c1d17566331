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
    void gridPlaces_data();
    void gridPlaces();
    void listKeepsTheLatest();
    void photosAreChosenShownAndPasted();
    void movieIsChosenShownAndPasted();
    void pastedPhotoIsTheOneJustTaken();
    void folderIsLoaded();
    void nothingIsLoadedWithoutAFolder();

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

// The lines of the only request, as the whiteboard software would read them; the request is gone then.
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

void TestReviewCommands::gridPlaces_data()
{
    // In an area of 933x700 at 45, worked out by hand: the corners of all, then their size.
    QTest::addColumn<QVector<QPoint>>("corners");
    QTest::addColumn<QSize>("size");
    QTest::newRow("none") << QVector<QPoint>{} << QSize();
    QTest::newRow("one") << QVector<QPoint>{{45, 0}} << QSize(933, 700);
    QTest::newRow("two") << QVector<QPoint>{{45, 175}, {511, 175}} << QSize(466, 350);
    QTest::newRow("three") << QVector<QPoint>{{45, 233}, {356, 233}, {667, 233}} << QSize(311, 233);
    QTest::newRow("four") << QVector<QPoint>{{45, 0}, {511, 0}, {45, 350}, {511, 350}} << QSize(466, 350);
    QTest::newRow("five") << QVector<QPoint>{{45, 117}, {356, 117}, {667, 117}, {45, 350}, {356, 350}}
                          << QSize(311, 233);
    QTest::newRow("seven") << QVector<QPoint>{{45, 0},    {356, 0},   {667, 0}, {45, 233},
                                              {356, 233}, {667, 233}, {45, 466}}
                           << QSize(311, 233);
}

void TestReviewCommands::gridPlaces()
{
    QFETCH(QVector<QPoint>, corners);
    QFETCH(QSize, size);
    QVector<QRect> expected;
    for (const QPoint &corner : qAsConst(corners))
        expected << QRect(corner, size);
    QCOMPARE(gridTiles(QRect(45, 0, 933, 700), corners.size()), expected);
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
    MainWindow main;
    const QString folder = WebcamUtil::getTemporaryPath();
    const QString forged = "photo1\n1.png"; // would be two lines
    const QString arabic = QString::fromUtf8("photoصورة😀.png");
    makePhoto(folder + "/photo0.png");
    makePhoto(folder + "/" + forged);
    makePhoto(folder + "/" + arabic);
    makePhoto(folder + "/photo3.png");
    main.press("List");
    choose(main, 3);
    QVERIFY(main.button("Show")->isEnabled());
    QVERIFY(main.view<PictureWidget>()->isVisible());
    choose(main, 3);
    QVERIFY(!main.button("Show")->isEnabled());
    for (int row : {3, 1, 0, 2})
        choose(main, row);
    main.press("Show");
    QCOMPARE(main.tiles().size(), 4);
    QCOMPARE(main.buttons(), QString("Live+ PutPhoto+ List+ Close+"));

    const QStringList head = {"0", "933x700", folder};
    main.press("PutPhoto");
    QCOMPARE(takeRequest(), head + QStringList({"photo3.png", "photo0.png", arabic}));
    const auto pressOn = [&main](PictureWidget *tile, const char *button) {
        for (auto *candidate : tile->findChildren<CStretchBitmapButton *>()) {
            if (candidate->accessibleName() == button)
                QTest::mouseClick(candidate, Qt::LeftButton);
        }
    };
    pressOn(main.tiles().at(2), "Zoom");
    QCOMPARE(main.tiles().size(), 1);
    QCOMPARE(main.tiles().first()->geometry(), QRect(45, 0, 933, 700));
    // A second one within the second takes the place of the first.
    QTRY_VERIFY(QTime::currentTime().msec() < 300);
    main.press("PutPhoto");
    main.press("PutPhoto");
    QCOMPARE(takeRequest(), head + QStringList("photo0.png"));
    pressOn(main.tiles().first(), "Back");
    QCOMPARE(main.tiles().size(), 4);
    QCOMPARE(main.tiles().first()->fileName(), QString("photo3.png"));

    main.press("List");
    QVERIFY(main.tiles().isEmpty());
    choose(main, 0);
    main.press("Show");
    QCOMPARE(main.tiles().size(), 1);
    QVERIFY(main.tiles().first()->findChildren<CStretchBitmapButton *>().isEmpty());
}

void TestReviewCommands::movieIsChosenShownAndPasted()
{
    MainWindow main;
    main.press("Movie");
    QTest::qWait(1200);
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

void TestReviewCommands::pastedPhotoIsTheOneJustTaken()
{
    MainWindow main("PhotoPreview=0\n");
    makePhotos(2);
    main.press("Photo");
    main.press("PutPhoto");
    QCOMPARE(takeRequest(), QStringList({"0", "933x700", WebcamUtil::getTemporaryPath(),
                                         MainWindow::captures("photo2*").first()}));
}

void TestReviewCommands::load(const MainWindow &main, const QString &folder)
{
    QTimer::singleShot(200, main.window.get(), [&] {
        auto *chooser = main.window->findChild<QFileDialog *>();
        if (folder.isEmpty()) {
            chooser->reject();
            return;
        }
        chooser->findChild<QLineEdit *>("fileNameEdit")->setText(folder);
        chooser->findChild<QLineEdit *>("fileNameEdit")->setFocus();
        QTest::keyClick(chooser->findChild<QLineEdit *>("fileNameEdit"), Qt::Key_Return);
    });
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
    const auto *wait = main.view<CWaiteMsgDlg>();
    {
        Answers answers({"OK"});
        load(main, earlier);
        QTRY_COMPARE(answers.told(), QStringList("Complete"));
        QVERIFY(!wait->isVisible());
    }
    QCOMPARE(MainWindow::captures(), QStringList({"photo000.png", "photo001.png", "photo002.png"}));
    QCOMPARE(QFileInfo(working + "/photo001.png").size(), 4);
    QCOMPARE(main.view<PictureListView>()->nameList().size(), 3);

    // Movies come with their previews, and the list of them still leads back to the photos.
    main.press("SwitchMovie");
    {
        Answers answers({"OK"});
        load(main, earlier);
        QTRY_COMPARE(answers.told(), QStringList("Complete"));
    }
    QCOMPARE(MainWindow::captures("movie*"), QStringList({"movie1.mov", "movie1tmp.png"}));
    QCOMPARE(main.view<PictureListView>()->nameList(), QStringList("movie1tmp.png"));
    main.press("SwitchPhoto");

    // A copy that cannot be made is told, and the others are made all the same.
    QFile::remove(working + "/photo000.png");
    QVERIFY(QFile::link("/nowhere", working + "/photo000.png"));
    QFile::remove(working + "/photo002.png");
    {
        Answers answers({"OK"});
        load(main, earlier);
        QTRY_COMPARE(answers.told(), QStringList("Failed."));
    }
    QVERIFY(QFile::exists(working + "/photo002.png"));
}

void TestReviewCommands::nothingIsLoadedWithoutAFolder()
{
    MainWindow main;
    main.press("List");
    const auto *wait = main.view<CWaiteMsgDlg>();
    load(main, QString());
    QTest::qWait(200);
    QVERIFY(!wait->isVisible());

    // From the working folder itself nothing is to be copied.
    makePhotos(2);
    Answers answers({"OK"});
    load(main, WebcamUtil::getTemporaryPath());
    QTRY_COMPARE(answers.told(), QStringList("Complete"));
    QCOMPARE(MainWindow::captures().size(), 2);
}

QTEST_MAIN(TestReviewCommands)
#include "tst_reviewcommands.moc"
