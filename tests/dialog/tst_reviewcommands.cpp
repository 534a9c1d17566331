#include "capture/timerwidget.h"
#include "dialog/layout.h"
#include "tests/dialog/mainwindow.h"
#include "tests/support/clipboard.h"
#include "widgets/moviewidget.h"
#include "widgets/picturelistview.h"

#include <QToolTip>

class TestReviewCommands : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { obeyPermissions(); }
    void gridPlaces();
    void photosOfAnyKindAreChosenShownAndPasted();
    void moviesOfAnyKindAreWatchedAndPasted();

private:
    struct Photo {
        QString name;
        QByteArray contents;
        bool isPicture;
    };
    QVector<Photo> photosOfAnyKind() const;
    static void choose(const MainWindow &main, int row);
    static void checkList(const MainWindow &main, const QVector<Photo> &files);
    static QStringList takeRequest();
    static void copyByKey(const MainWindow &main)
    {
        QTest::keyClick(main.window->focusWidget(), Qt::Key_C, Qt::ControlModifier);
    }
};

// White is 255, an empty viewer 0.
static int brightness(const QPixmap &picture)
{
    return picture.toImage().pixelColor(picture.rect().center()).lightness();
}

// A panel comes or goes: every screen is made to fit.
static void changeScreen()
{
    QScreen *screen = QGuiApplication::primaryScreen();
    emit screen->availableGeometryChanged(screen->availableGeometry());
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
    const QDir folder(working("tmp"));
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden);
    QFile file(folder.filePath(names.value(0)));
    if (names.size() != 1 || !QRegularExpression("^PUTVXS\\d{14}$").match(names.first()).hasMatch() ||
        !file.open(QIODevice::ReadOnly))
        return {"requests: " + names.join(' ')};
    const QString text = QString::fromUtf8(file.readAll());
    file.remove();
    return text.endsWith('\n') ? text.chopped(1).split('\n') : QStringList{"cut: " + text};
}

void TestReviewCommands::gridPlaces()
{
    // In an area of 933x700 at 45, worked out by hand: the size of all, and their corners.
    const struct {
        QSize size;
        QVector<QPoint> corners;
    } grids[] = {
        {{466, 350}, {{45, 175}, {511, 175}}},
        {{311, 233}, {{45, 117}, {356, 117}, {667, 117}, {45, 350}, {356, 350}}},
        {{311, 233}, {{45, 0}, {356, 0}, {667, 0}, {45, 233}, {356, 233}, {667, 233}, {45, 466}}},
    };
    for (const auto &grid : grids) {
        const QVector<QRect> places = gridTiles(QRect(45, 0, 933, 700), grid.corners.size());
        QCOMPARE(places.size(), grid.corners.size());
        for (int i = 0; i < places.size(); ++i)
            QCOMPARE(places[i], QRect(grid.corners[i], grid.size));
    }
}

// Made in the working folder, in this order.
QVector<TestReviewCommands::Photo> TestReviewCommands::photosOfAnyKind() const
{
    QImage hugeImage(30000, 30000, QImage::Format_Mono);
    hugeImage.fill(1); // white
    const QByteArray huge = png(hugeImage);
    const QByteArray photo = whitePhoto();
    const QByteArray wrongLength = QByteArray(photo).replace(photo.indexOf("IDAT") - 4, 1, "\x7f");
    const QVector<Photo> files = {
        {"photo1.png", photo, true},
        {"photo2 cut.png", photo.left(60), false},
        {"photo3 of 30000x30000.png", huge, false},
        {"photo4 of a wrong length.png", wrongLength, false},
        {"photo5 of text.png", "not a picture", false},
        {"photo6 of nothing.png", "", false},
        {"photo7 unreadable.png", photo, false},
        {"photo8\nforged.png", photo, true}, // would be two lines
        {QString::fromUtf8("photo9 \u0635\u0648\u0631\u0629 \U0001F600.png"), photo, true},
    };
    for (const Photo &file : files)
        MainWindow::writeFile(working(file.name), file.contents);
    QFile::setPermissions(working("photo7 unreadable.png"), {});
    QDir().mkdir(working("photo7.png"));
    return files;
}

// The thumbnails, and the preview of each when it is chosen.
void TestReviewCommands::checkList(const MainWindow &main, const QVector<Photo> &files)
{
    const auto *list = main.view<PictureListView>();
    auto *preview = main.view<PictureWidget>();
    const auto thumbnail = [&](int row) {
        return brightness(list->item(row)->icon().pixmap(list->iconSize()));
    };
    QTRY_COMPARE(thumbnail(files.size() - 1), 255); // they are read one after the other
    for (int row = 0; row < files.size(); ++row) {
        const bool isPicture = files[row].isPicture;
        QTRY_COMPARE(thumbnail(row), isPicture ? 255 : QColor(Qt::lightGray).lightness());
        choose(main, row);
        changeScreen();
        QVERIFY(main.button("Show")->isEnabled());
        QCOMPARE(preview->fileName(), files[row].name);
        QTRY_COMPARE(brightness(preview->grab()), isPicture ? 255 : 0);
        choose(main, row);
        QVERIFY(!main.button("Show")->isEnabled());
        QCOMPARE(brightness(preview->grab()), 0);
    }
}

void TestReviewCommands::photosOfAnyKindAreChosenShownAndPasted()
{
    MainWindow main;
    const QStringList head = {"0", "933x700", WebcamUtil::getTemporaryPath()};
    const QVector<Photo> files = photosOfAnyKind();
    QStringList names;
    for (const Photo &file : files)
        names << file.name;
    main.press("List");
    QCOMPARE(main.view<PictureListView>()->nameList(), names);
    checkList(main, files);
    for (int row = names.size() - 1; row >= 0; --row)
        choose(main, row);
    copyByKey(main);
    QCOMPARE(onClipboard("text/uri-list").count("file:///"), 9);
    main.press("Show");
    QCOMPARE(main.tiles().size(), 9);
    QCOMPARE(main.buttons(), QString("Live+ PutPhoto+ List+ Close+"));
    for (int i = 0; i < main.tiles().size(); ++i)
        QTRY_COMPARE(brightness(main.tiles().at(i)->grab()), files[8 - i].isPicture ? 255 : 0);
    main.press("PutPhoto");
    QStringList pasted(names.rbegin(), names.rend());
    pasted.removeAt(1);
    QCOMPARE(takeRequest(), head + pasted);

    auto *zoom = main.tiles().first()->findChild<CStretchBitmapButton *>();
    QTest::mouseMove(zoom);
    QTRY_COMPARE(QToolTip::text(), QString("Zoom"));
    // The button for going back comes under the finger, and under the key, that zoomed.
    zoom->setFocus(Qt::TabFocusReason);
    QTest::keyClick(main.window->focusWidget(), Qt::Key_Space);
    QCOMPARE(main.tiles().size(), 1);
    QCOMPARE(main.tiles().first()->geometry(), QRect(45, 0, 933, 700));
    QTRY_COMPARE(brightness(main.tiles().first()->grab()), files[8].isPicture ? 255 : 0);
    changeScreen();
    QCOMPARE(main.tiles().size(), 1);
    QTRY_COMPARE(brightness(main.tiles().first()->grab()), files[8].isPicture ? 255 : 0);
    QCOMPARE(main.window->focusWidget()->accessibleName(), QString("Back"));
    main.press("PutPhoto");
    QCOMPARE(takeRequest(), head + QStringList(files[8].name));
    QCOMPARE(onClipboard("image/png"), files[8].contents);
    QCOMPARE(QUrl(onClipboard("text/uri-list").trimmed()).toLocalFile(), working(files[8].name));
    main.tiles().first()->findChildren<CStretchBitmapButton *>().last()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(main.window->focusWidget(), Qt::Key_Space);
    QCOMPARE(main.tiles().size(), 9);
    copyByKey(main);
    QCOMPARE(onClipboard("text/uri-list").count("file:///"), 9);
    QCOMPARE(onClipboard("image/png"), QByteArray());
    main.press("Live");
    QTRY_VERIFY(main.button("Photo")->isEnabled());
    main.press("Photo");
    copyByKey(main);
    QCOMPARE(QUrl(onClipboard("text/uri-list").trimmed()).toLocalFile(),
             working(main.view<PictureWidget>()->fileName()));
    QVERIFY(WebcamUtil::saveData(QDir::homePath())); // also what could not be read
    QCOMPARE(MainWindow::captures(), QStringList());
}

void TestReviewCommands::moviesOfAnyKindAreWatchedAndPasted()
{
    MainWindow main;
    for (const char *name : {"movie1.mov", "movie1tmp.png", "movie2tmp.png"})
        MainWindow::writeFile(working(name), "");
    MainWindow::writeFile(working("movie2.mov"), "not a movie");
    const Answers answers({"OK"});
    main.press("Movie");
    auto *time = main.view<TimerWidget>();
    QTRY_COMPARE_WITH_TIMEOUT(time->text(), QString("00:03"), 4500);
    emit time->movieTimeOver(); // the limit ends it as the button does
    emit time->movieTimeOver(); // and coming again does no harm
    auto *player = main.view<MovieWidget>();
    QTRY_VERIFY_WITH_TIMEOUT(player->isPaused(), 5000);
    for (int row = 0; row < 3; ++row) { // the third has just been taken
        main.press("List");
        QCOMPARE(main.view<PictureListView>()->count(), 3);
        choose(main, row);
        const QString movie = main.view<PictureListView>()->item(row)->text();
        main.press("Show");
        QCOMPARE(main.window->currentMode(), DisplayMode::Movie);
        QTest::qWait(300); // past the moment at which the player holds its first picture
        if (row == 2)
            QTRY_VERIFY(player->totalTime() > 0); // it is loaded
        main.window->OnVXS();
        QCOMPARE(takeRequest(), QStringList({"1", "XXX", WebcamUtil::getTemporaryPath(), "/" + movie}));
        copyByKey(main);
        QCOMPARE(QUrl(onClipboard("text/uri-list").trimmed()).toLocalFile(), working(movie));
        main.press("MoviePlay");
        QCOMPARE(main.buttons(), QString("Live+ MoviePause+ List+ Close+"));
        if (row == 2) // it counts, even if a busy machine leaves seconds out
            QTRY_VERIFY(time->text() > "00:01/" &&
                        time->text().endsWith(QString("/00:0%1").arg(player->totalTime() / 1000)));
        main.press("MoviePause");
        QTRY_VERIFY(!player->isPlaying());
        QCOMPARE(main.buttons(), QString("Live+ MoviePlay+ List+ Close+"));
    }
    QVERIFY(player->isPaused() && !time->findChild<QTimer *>()->isActive());
    for (int showing = 0; showing < 2; ++showing) { // to the end, and once more from the start
        main.press("MoviePlay");
        QTRY_VERIFY(main.button("MoviePause")->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(main.button("MoviePlay")->isVisible(), 6000);
    }
    QCOMPARE(answers.told(), QStringList());
    // What the player does not play after several tries is told.
    main.press("List");
    choose(main, 1);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("movie2.mov: The player does not play it"));
    main.press("Show");
    QTRY_COMPARE_WITH_TIMEOUT(answers.told(), QStringList("Load failed."), 20000);
    QCOMPARE(main.buttons(), QString("Live+ MoviePlay+ List+ Close+"));
}

QTEST_MAIN(TestReviewCommands)
#include "tst_reviewcommands.moc"
