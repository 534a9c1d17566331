#include "dialog/waitemsgdlg.h"
#include "tests/dialog/mainwindow.h"
#include "widgets/picturelistview.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QProgressBar>

class TestLoadCommand : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { obeyPermissions(); }
    void folderIsLoaded();
    void windowLivesThroughALargeLoad();

private:
    const QByteArray m_photo = whitePhoto();
};

// The wait dialog stands when this returns; the work begins afterwards. No folder: the choice is cancelled.
static void load(const MainWindow &main, const QString &folder)
{
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
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

void TestLoadCommand::folderIsLoaded()
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

void TestLoadCommand::windowLivesThroughALargeLoad()
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
    auto *dialog = main.view<CWaiteMsgDlg>();
    load(main, earlier);
    QTest::keyClick(dialog, Qt::Key_Escape); // before the work has begun
    {
        Answers answers({"OK"});
        QTRY_COMPARE(answers.told(), QStringList("Failed."));
    }
    load(main, earlier);

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
    QTRY_VERIFY(looks.size() > 1 && !MainWindow::captures().isEmpty()); // it moves, and has begun
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

QTEST_MAIN(TestLoadCommand)
#include "tst_loadcommand.moc"
