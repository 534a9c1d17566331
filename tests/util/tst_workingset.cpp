#include "tests/support/smalldisk.h"
#include "util/webcamutil.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QTimer>
#include <QtTest>

#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

bool write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

bool setTime(const QString &path, long seconds, long nanoseconds)
{
    const timespec times[] = {{seconds, nanoseconds}, {seconds, nanoseconds}};
    return utimensat(AT_FDCWD, QFile::encodeName(path), times, 0) == 0;
}

QStringList everything(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                  QDir::Name);
}

} // namespace

// Lists, pairs and the move into the save folder.
class TestWorkingSet : public QObject
{
    Q_OBJECT

    QString working(const QString &name = QString()) const
    {
        return WebcamUtil::getTemporaryPath() + "/" + name;
    }
    QString base() const { return m_disk ? m_disk->path("save") : m_tmp->filePath("save"); }
    QString saved(const QString &name = QString()) const
    {
        return base() + "/VeltrixCamera/" + QDate::currentDate().toString("yyyyMMdd") + "/" + name;
    }
    // From now on the save folder is on a file system of its own.
    bool useDisk(int mebibytes)
    {
        m_disk = std::make_unique<SmallDisk>(mebibytes);
        return m_disk->isMounted() && QDir().mkpath(saved());
    }

    const QByteArray m_systemTmp = qgetenv("TMPDIR");
    std::unique_ptr<QTemporaryDir> m_tmp;
    std::unique_ptr<SmallDisk> m_disk;

private slots:
    void init();
    void cleanup();
    void listsPairsAndDeletes();
    void savesAll_data();
    void savesAll();
    void obstaclesLoseNothing_data();
    void obstaclesLoseNothing();
    void fullDiskKeepsPairsTogether();
    void killedCopyLeavesNothing();
};

void TestWorkingSet::init()
{
    m_tmp = std::make_unique<QTemporaryDir>();
    qputenv("TMPDIR", QFile::encodeName(m_tmp->path()));
    WebcamUtil::m_pictureDataPath.clear();
    QVERIFY(QDir().mkpath(saved()));
}

void TestWorkingSet::cleanup()
{
    m_disk.reset();
    qputenv("TMPDIR", m_systemTmp);
}

void TestWorkingSet::listsPairsAndDeletes()
{
    QVERIFY(!WebcamUtil::isSaveFile() && !WebcamUtil::saveData(base()));
    const struct {
        const char *name;
        long nanoseconds;
    } table[] = {{"photo9.png", 1}, {"photo2.png", 2},       {"photo3.png", 2},     {"movie1.mov", 2},
                 {"photo1.png", 3}, {"movie1tmp.png", 4},    {"movie2.mov", 5},     {"movie3tmp.png", 6},
                 {"Photo5.png", 7}, {"photo4.png", 2000000}, {"notes.txt", 2000000}};
    for (const auto &row : table)
        QVERIFY(write(working(row.name), "x") && setTime(working(row.name), 1000, row.nanoseconds));
    QVERIFY(write(working(".photo6.png"), "x") && QDir().mkdir(working("photo7.png")));
    QVERIFY(QFile::link(working("photo1.png"), working("photo8.png")));

    const QStringList photos = {"photo9.png", "photo2.png", "photo3.png", "photo1.png", "photo4.png"};
    QCOMPARE(WebcamUtil::getFileList({"photo*"}), photos);
    QCOMPARE(WebcamUtil::getTempPhotoNameList(), photos);
    QCOMPARE(WebcamUtil::getFileListFromDir(working(), {}).size(), 9);
    QVERIFY(WebcamUtil::getFileListFromDir("", {}).isEmpty());
    QCOMPARE(WebcamUtil::getMovieFileList(), QStringList({"movie1.mov"}));
    QCOMPARE(WebcamUtil::getLoadMovieFile(working()), QStringList({"movie1.mov", "movie1tmp.png"}));
    QVERIFY(WebcamUtil::isSaveFile() && WebcamUtil::m_savefilenameList.size() == 11);

    WebcamUtil::deleteData();
    const QStringList left = {".photo6.png", "Photo5.png", "notes.txt", "photo7.png", "photo8.png"};
    QCOMPARE(everything(working()), left);
    QVERIFY(WebcamUtil::isMovieFile() && !WebcamUtil::isPhotoFile());
    QVERIFY(WebcamUtil::isSaveFile() && !WebcamUtil::saveData(base())); // no capture among them
}

void TestWorkingSet::savesAll_data()
{
    QTest::addColumn<bool>("across");
    QTest::newRow("one file system") << false;
    QTest::newRow("two file systems") << true;
}

void TestWorkingSet::savesAll()
{
    QFETCH(bool, across);
    if (across && !useDisk(100))
        QSKIP("only root can mount");
    const QByteArray movie(64 << 20, 'm');
    QVERIFY(write(working("movie1.mov"), movie) && write(working("movie1tmp.png"), "preview"));
    QVERIFY(write(working("photo1.png"), "one") && write(working("notes.txt"), "x"));
    QVERIFY(setTime(working("photo1.png"), 1000, 5));
    QVERIFY(write(working("photo2.png"), "newer") && write(saved("photo2.png"), "older"));
    struct stat before = {};
    QCOMPARE(stat(QFile::encodeName(working("movie1.mov")), &before), 0);

    int beats = 0; // of the thread that paints
    QTimer heart;
    connect(&heart, &QTimer::timeout, this, [&beats] { ++beats; });
    heart.start(1);
    QVERIFY(WebcamUtil::saveData(base()));
    QVERIFY(!across || beats > 2);
    QCOMPARE(everything(working()), QStringList({"notes.txt"}));
    QCOMPARE(everything(saved()), QStringList({"movie1.mov", "movie1tmp.png", "photo1.png", "photo2.png"}));
    QVERIFY(read(saved("movie1.mov")) == movie && read(saved("photo1.png")) == "one");
    QCOMPARE(read(saved("photo2.png")), QByteArray("older")); // a clash keeps what was saved first
    struct stat after = {};
    QCOMPARE(stat(QFile::encodeName(saved("photo1.png")), &after), 0);
    QVERIFY(after.st_mtim.tv_sec == 1000 && after.st_mtim.tv_nsec == 5);
    QCOMPARE(stat(QFile::encodeName(saved("movie1.mov")), &after), 0);
    QCOMPARE(after.st_ino == before.st_ino && after.st_dev == before.st_dev, !across); // moved, not copied
    QCOMPARE(after.st_mode, before.st_mode);
}

void TestWorkingSet::obstaclesLoseNothing_data()
{
    QTest::addColumn<QString>("obstacle");
    for (const char *obstacle : {"file for a folder", "read-only disk", "folder", "link to the capture",
                                 "dangling", "source that stays"})
        QTest::newRow(obstacle) << obstacle;
}

void TestWorkingSet::obstaclesLoseNothing()
{
    QFETCH(QString, obstacle);
    QVERIFY(write(working("movie1.mov"), "movie") && write(working("movie1tmp.png"), "preview"));
    const QByteArray workingFolder = QFile::encodeName(working());
    if (obstacle == "file for a folder") {
        QVERIFY(QDir(base() + "/VeltrixCamera").removeRecursively() && write(base() + "/VeltrixCamera", "x"));
    } else if (obstacle == "read-only disk") {
        if (!useDisk(2) || !m_disk->makeReadOnly())
            QSKIP("only root can mount");
    } else if (obstacle == "folder") {
        QVERIFY(QDir().mkdir(saved("movie1tmp.png")));
    } else if (obstacle == "source that stays") {
        if (QProcess::execute("mount", {"--bind", "-o", "ro", workingFolder, workingFolder}) != 0)
            QSKIP("only root can mount");
    } else {
        const QString goal = obstacle == "dangling" ? saved("nowhere") : working("movie1.mov");
        QVERIFY(QFile::link(goal, saved("movie1.mov")));
    }
    const bool isSaved = WebcamUtil::saveData(base());
    if (obstacle == "source that stays") {
        QProcess::execute("umount", {"-l", workingFolder});
        QCOMPARE(read(saved("movie1.mov")), QByteArray("movie"));
    } else {
        QVERIFY(everything(saved()).size() <= 1); // the obstacle alone: neither of the pair was left there
    }
    QVERIFY(!isSaved);
    QCOMPARE(read(working("movie1.mov")), QByteArray("movie"));
    QCOMPARE(read(working("movie1tmp.png")), QByteArray("preview"));
}

void TestWorkingSet::fullDiskKeepsPairsTogether()
{
    if (!useDisk(2))
        QSKIP("only root can mount");
    const QByteArray movie(3'000'000, 'm');
    long second = 1000;
    for (const char *name : {"photo1.png", "movie1.mov", "movie1tmp.png", "photo2.png"}) {
        QVERIFY(write(working(name), name == QString("movie1.mov") ? movie : QByteArray("x")));
        QVERIFY(setTime(working(name), second++, 0));
    }
    QVERIFY(!WebcamUtil::saveData(base()));
    QCOMPARE(everything(saved()), QStringList({"photo2.png"}));
    QCOMPARE(everything(working()), QStringList({"movie1.mov", "movie1tmp.png", "photo1.png"}));
    QCOMPARE(read(working("movie1.mov")), movie);
}

// Whether the process has written into the open file behind one of its descriptors, but not yet all of it.
static bool isInTheMiddle(pid_t pid, qint64 size)
{
    const QDir descriptors(QString("/proc/%1/fdinfo").arg(pid));
    const QString folder = QString("/proc/%1/fd/").arg(pid);
    for (const QString &name : descriptors.entryList(QDir::Files)) {
        const QByteArray position = read(descriptors.filePath(name)).split('\n').value(0).mid(5).trimmed();
        if (QFile::symLinkTarget(folder + name).contains("/save/") && position.toLongLong() > 0)
            return position.toLongLong() < size;
    }
    return false;
}

void TestWorkingSet::killedCopyLeavesNothing()
{
    if (!useDisk(200))
        QSKIP("only root can mount");
    const QByteArray movie(100 << 20, 'm');
    QVERIFY(write(working("movie1.mov"), movie));
    const pid_t child = fork();
    if (child == 0)
        _exit(WebcamUtil::saveData(base()) ? 0 : 1);
    const QDeadlineTimer deadline(10000);
    while (!isInTheMiddle(child, movie.size()) && !deadline.hasExpired()) {
    }
    kill(child, SIGKILL);
    int status = 0;
    QCOMPARE(waitpid(child, &status, 0), child);
    QVERIFY(WIFSIGNALED(status)); // it was not done yet
    QCOMPARE(everything(saved()), QStringList());
    QVERIFY(read(working("movie1.mov")) == movie);
    QVERIFY(WebcamUtil::saveData(base()));
    QVERIFY(read(saved("movie1.mov")) == movie);
}

QTEST_GUILESS_MAIN(TestWorkingSet)
#include "tst_workingset.moc"
