#include "capture/timerwidget.h"
#include "dialog/gridlayout.h"
#include "dialog/waitemsgdlg.h"
#include "tests/dialog/mainwindow.h"
#include "tests/support/smalldisk.h"
#include "widgets/moviewidget.h"
#include "widgets/picturelistview.h"

#include <QBuffer>
#include <QFileDialog>
#include <QLineEdit>
#include <QProgressBar>

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

class TestReviewCommands : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void gridPlaces();
    void photosOfAnyKindAreChosenShownAndPasted();
    void moviesOfAnyKindAreWatchedAndPasted();
    void folderIsLoaded();
    void windowLivesThroughALargeLoad();
    void loadLeavesRoomForCaptures();

private:
    struct Photo {
        QString name;
        QByteArray contents;
        bool isPicture;
    };
    QVector<Photo> photosOfAnyKind() const;
    static QString working(const QString &name = QString())
    {
        return WebcamUtil::getTemporaryPath() + "/" + name;
    }
    static void choose(const MainWindow &main, int row);
    static void checkList(const MainWindow &main, const QVector<Photo> &files);
    static QStringList takeRequest();
    static void load(const MainWindow &main, const QString &folder);

    QByteArray m_photo; // white
};

static QByteArray png(const QImage &image)
{
    QByteArray contents;
    QBuffer buffer(&contents);
    image.save(&buffer, "PNG");
    return contents;
}

// White is 255, an empty viewer 0.
static int brightness(const QPixmap &picture)
{
    return picture.toImage().pixelColor(picture.rect().center()).lightness();
}

// Root, too, shall meet files and folders that may not be read. This counts for this thread, and for all that
// it starts from now on.
static void obeyPermissions()
{
    __user_cap_header_struct version = {_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct rights[_LINUX_CAPABILITY_U32S_3] = {};
    QCOMPARE(syscall(SYS_capget, &version, rights), 0L);
    rights[0].permitted &= ~(1U << CAP_DAC_OVERRIDE | 1U << CAP_DAC_READ_SEARCH);
    rights[0].effective = rights[0].permitted;
    QCOMPARE(syscall(SYS_capset, &version, rights), 0L);
}

void TestReviewCommands::initTestCase()
{
    obeyPermissions();
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(Qt::white);
    m_photo = png(image);
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
        {{933, 700}, {{45, 0}}},
        {{466, 350}, {{45, 175}, {511, 175}}},
        {{311, 233}, {{45, 233}, {356, 233}, {667, 233}}},
        {{466, 350}, {{45, 0}, {511, 0}, {45, 350}, {511, 350}}},
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
    const QByteArray wrongLength = QByteArray(m_photo).replace(m_photo.indexOf("IDAT") - 4, 1, "\x7f");
    const QVector<Photo> files = {
        {"photo1.png", m_photo, true},
        {"photo2 cut.png", m_photo.left(60), false},
        {"photo3 of 30000x30000.png", huge, false},
        {"photo4 of a wrong length.png", wrongLength, false},
        {"photo5 of text.png", "not a picture", false},
        {"photo6 of nothing.png", "", false},
        {"photo7 unreadable.png", m_photo, false},
        {"photo8\nforged.png", m_photo, true}, // would be two lines
        {QString::fromUtf8("photo9 \u0635\u0648\u0631\u0629 \U0001F600.png"), m_photo, true},
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
        QVERIFY(main.button("Show")->isEnabled());
        QCOMPARE(preview->fileName(), files[row].name);
        QCOMPARE(brightness(preview->grab()), isPicture ? 255 : 0);
        choose(main, row);
        QVERIFY(!main.button("Show")->isEnabled());
        QCOMPARE(brightness(preview->grab()), 0);
    }
}

void TestReviewCommands::photosOfAnyKindAreChosenShownAndPasted()
{
    MainWindow main("PhotoPreview=0\n");
    const QStringList head = {"0", "933x700", WebcamUtil::getTemporaryPath()};
    main.press("Photo");
    const QString taken = MainWindow::captures().first();
    main.press("PutPhoto");
    QCOMPARE(takeRequest(), head + QStringList(taken));
    QVERIFY(QDir(working()).removeRecursively()); // made again, for this user alone
    main.press("PutPhoto");
    QCOMPARE(takeRequest(), head + QStringList(taken));
    QCOMPARE(int(QFile(working()).permissions() & 0x77), 0);

    const QVector<Photo> files = photosOfAnyKind();
    QStringList names;
    for (const Photo &file : files)
        names << file.name;
    main.press("List");
    QCOMPARE(main.view<PictureListView>()->nameList(), names);
    checkList(main, files);
    for (int row = names.size() - 1; row >= 0; --row)
        choose(main, row);
    main.press("Show");
    QCOMPARE(main.tiles().size(), 9);
    QCOMPARE(main.buttons(), QString("Live+ PutPhoto+ List+ Close+"));
    for (int i = 0; i < main.tiles().size(); ++i)
        QCOMPARE(brightness(main.tiles().at(i)->grab()), files[8 - i].isPicture ? 255 : 0);
    main.press("PutPhoto");
    QStringList pasted(names.rbegin(), names.rend());
    pasted.removeAt(1);
    QCOMPARE(takeRequest(), head + pasted);

    // The button for going back comes under the finger, and under the key, that zoomed.
    for (int tile : {0, 3}) {
        main.tiles().at(tile)->findChild<CStretchBitmapButton *>()->setFocus(Qt::TabFocusReason);
        QTest::keyClick(main.window->focusWidget(), Qt::Key_Space);
        QCOMPARE(main.tiles().size(), 1);
        QCOMPARE(main.tiles().first()->geometry(), QRect(45, 0, 933, 700));
        QCOMPARE(brightness(main.tiles().first()->grab()), files[8 - tile].isPicture ? 255 : 0);
        QCOMPARE(main.window->focusWidget()->accessibleName(), QString("Back"));
        // A second request within the second takes the place of the first.
        QTRY_VERIFY(QTime::currentTime().msec() < 300);
        main.press("PutPhoto");
        main.press("PutPhoto");
        QCOMPARE(takeRequest(), head + QStringList(files[8 - tile].name));
        main.tiles().first()->findChildren<CStretchBitmapButton *>().last()->setFocus(Qt::TabFocusReason);
        QTest::keyClick(main.window->focusWidget(), Qt::Key_Space);
        QCOMPARE(main.tiles().size(), 9);
    }
    QVERIFY(WebcamUtil::saveData(QDir::homePath())); // also what could not be read
    QCOMPARE(MainWindow::captures(), QStringList());
}

void TestReviewCommands::moviesOfAnyKindAreWatchedAndPasted()
{
    MainWindow main;
    for (const char *name : {"movie1.mov", "movie1tmp.png", "movie2tmp.png"})
        MainWindow::writeFile(working(name), "");
    MainWindow::writeFile(working("movie2.mov"), "not a movie");
    main.press("Movie");
    auto *time = main.view<TimerWidget>();
    QCOMPARE(time->text(), QString("00:00"));
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
        main.window->OnVXS();
        QCOMPARE(takeRequest(), QStringList({"1", "XXX", WebcamUtil::getTemporaryPath(), "/" + movie}));
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
}

// The wait dialog stands when this returns; the work begins afterwards. No folder: the choice is cancelled.
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
    const QString earlier = QDir::homePath() + "/earlier";
    QDir().mkpath(earlier);
    for (const char *name :
         {"photo0.png", "photo1.png", "photo2.png", "notes.txt", "movie1.mov", "movie1tmp.png", "movie2.mov"})
        MainWindow::writeFile(earlier + "/" + name, m_photo);
    MainWindow::writeFile(working("photo1.png"), "kept");
    main.press("List");
    load(main, QString());
    QVERIFY(!main.view<CWaiteMsgDlg>()->isVisible());
    const auto loadAndRead = [&](
                                 const QString &told, const std::function<void()> &meanwhile = [] {}) {
        Answers answers({"OK"});
        load(main, earlier);
        meanwhile();
        QTRY_COMPARE(answers.told(), QStringList(told));
    };
    loadAndRead("Complete");
    QCOMPARE(MainWindow::captures(), QStringList({"photo0.png", "photo1.png", "photo2.png"}));
    QCOMPARE(QFileInfo(working("photo1.png")).size(), 4);
    QCOMPARE(main.view<PictureListView>()->nameList().size(), 3);

    // Movies come with their previews, and the list of them still leads back to the photos.
    main.press("SwitchMovie");
    loadAndRead("Complete");
    QCOMPARE(MainWindow::captures("movie*"), QStringList({"movie1.mov", "movie1tmp.png"}));
    QCOMPARE(main.view<PictureListView>()->nameList(), QStringList("movie1tmp.png"));
    for (const char *name : {"movie1.mov", "movie1tmp.png"})
        QVERIFY(QFile::remove(working(name)));
    QVERIFY(QFile::setPermissions(earlier + "/movie1tmp.png", {})); // both or none
    loadAndRead("Failed.");
    QCOMPARE(MainWindow::captures("movie*"), QStringList());
    main.press("SwitchPhoto");

    // A copy that cannot be made is told, and the others are made all the same.
    QFile::remove(working("photo0.png"));
    QFile::remove(working("photo2.png"));
    QVERIFY(QFile::setPermissions(earlier + "/photo0.png", {}));
    loadAndRead("Failed.");
    QCOMPARE(MainWindow::captures("photo*"), QStringList({"photo1.png", "photo2.png"}));
    loadAndRead("Failed.", [&] { QVERIFY(QFile::setPermissions(earlier, {})); });
    QVERIFY(QFile::setPermissions(earlier, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    loadAndRead("Failed.", [&] { QVERIFY(QDir(earlier).removeRecursively()); });
}

void TestReviewCommands::windowLivesThroughALargeLoad()
{
    MainWindow main;
    const QString earlier = QDir::homePath() + "/earlier";
    QDir().mkpath(earlier);
    QStringList names;
    for (int i = 0; i < 3000; ++i) {
        names << QString("photo%1.png").arg(i, 4, 10, QLatin1Char('0'));
        MainWindow::writeFile(earlier + "/" + names.last(), m_photo);
    }
    names << "photo9 large.png";
    QFile large(earlier + "/" + names.last());
    QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(1 << 30));
    main.press("List");
    load(main, earlier);

    auto *dialog = main.view<CWaiteMsgDlg>();
    auto *bar = dialog->findChild<QProgressBar *>();
    QSet<QByteArray> looks; // of the bar on the screen
    qint64 longestGap = 0;
    QElapsedTimer sinceTick;
    QTimer heart;
    connect(&heart, &QTimer::timeout, [&] {
        longestGap = qMax(longestGap, sinceTick.restart());
        const QPoint corner = bar->mapToGlobal(QPoint());
        const QImage look =
            bar->screen()->grabWindow(0, corner.x(), corner.y(), bar->width(), bar->height()).toImage();
        if (bar->isVisible())
            looks << QByteArray(reinterpret_cast<const char *>(look.constBits()), int(look.sizeInBytes()));
    });
    sinceTick.start();
    heart.start(10);
    QTRY_VERIFY(looks.size() > 5);
    QCOMPARE(dialog->findChild<QLabel *>()->text(), QString("Please Waite.."));
    QTest::keyClick(dialog, Qt::Key_Escape); // stops the work, and only that
    QVERIFY(dialog->isVisible());
    Answers answers({"OK", "OK"});
    QTRY_COMPARE(answers.told(), QStringList("Failed."));
    QVERIFY(MainWindow::captures().size() < names.size());
    QElapsedTimer whole;
    whole.start();
    load(main, earlier);
    QTRY_COMPARE_WITH_TIMEOUT(answers.told(), QStringList({"Failed.", "Complete"}), 30000);
    qInfo("of %lld ms the longest gap was %lld", whole.elapsed(), longestGap);
    QVERIFY(longestGap < qMax<qint64>(250, whole.elapsed() / 5));
    QVERIFY(!dialog->isVisible());
    QCOMPARE(MainWindow::captures(), names);
    QCOMPARE(main.view<PictureListView>()->nameList(), names.mid(names.size() - 50));
}

void TestReviewCommands::loadLeavesRoomForCaptures()
{
    const SmallDisk disk(200);
    if (!disk.isMounted())
        QSKIP("a small file system takes root to mount");
    const QString earlier = QDir::homePath() + "/earlier of few";
    QDir().mkpath(earlier);
    MainWindow::writeFile(earlier + "/photo1.png", m_photo);
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", disk.path("").toUtf8());
    WebcamUtil::setTemporaryPath();
    Answers answers({"OK", "OK"}); // the first to the warning of so small a disk
    {
        MainWindow main;
        main.press("List");
        load(main, earlier);
        QTRY_COMPARE(answers.told().value(1), QString("Failed."));
        QCOMPARE(MainWindow::captures(), QStringList());
    }
    qputenv("TMPDIR", before);
    WebcamUtil::setTemporaryPath();
}

QTEST_MAIN(TestReviewCommands)
#include "tst_reviewcommands.moc"
