#include "util/filemove.h"
#include "util/webcamutil.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <fcntl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

// Lists, pairs and the move into the save folder.
class TestWorkingSet : public QObject
{
    Q_OBJECT

    QString working(const QString &name) const { return WebcamUtil::getTemporaryPath() + "/" + name; }
    QString base() const { return m_tmp->filePath("save"); }
    QString saved(const QString &name = QString()) const
    {
        return base() + "/VeltrixCamera/" + QDate::currentDate().toString("yyyyMMdd") + "/" + name;
    }
    bool mountSaveFolder(const char *options);

    const QByteArray m_systemTmp = qgetenv("TMPDIR");
    QScopedPointer<QTemporaryDir> m_tmp;
    bool m_mounted = false;

private slots:
    void init();
    void cleanup();
    void listsOldestFirst();
    void pairsMovies();
    void deletesCapturesOnly();
    void savesAll_data();
    void savesAll();
    void clashKeepsTheSavedFile();
    void nothingToSave();
    void obstaclesLoseNothing_data();
    void obstaclesLoseNothing();
    void fullDiskKeepsPairsTogether();
    void killedCopyLeavesNothing();
    void copyNeverReplaces();
};

static bool write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

static QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

static bool setTime(const QString &path, long seconds, long nanoseconds)
{
    const timespec times[] = {{seconds, nanoseconds}, {seconds, nanoseconds}};
    return utimensat(AT_FDCWD, QFile::encodeName(path), times, 0) == 0;
}

static QStringList everything(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                  QDir::Name);
}

void TestWorkingSet::init()
{
    m_tmp.reset(new QTemporaryDir);
    qputenv("TMPDIR", QFile::encodeName(m_tmp->path()));
    WebcamUtil::m_pictureDataPath.clear();
    QVERIFY(QDir().mkdir(base()));
}

void TestWorkingSet::cleanup()
{
    if (m_mounted)
        umount2(QFile::encodeName(base()), MNT_DETACH);
    m_mounted = false;
    qputenv("TMPDIR", m_systemTmp);
}

bool TestWorkingSet::mountSaveFolder(const char *options)
{
    m_mounted = mount("tmpfs", QFile::encodeName(base()), "tmpfs", 0, options) == 0;
    return m_mounted;
}

void TestWorkingSet::listsOldestFirst()
{
    const struct {
        const char *name;
        long nanoseconds;
    } table[] = {{"photo9.png", 1}, {"photo2.png", 2}, {"photo3.png", 2},
                 {"movie1.mov", 2}, {"photo1.png", 3}, {"photo4.png", 2'000'000}};
    for (const auto &row : table)
        QVERIFY(write(working(row.name), "x") && setTime(working(row.name), 1000, row.nanoseconds));
    for (const char *foreign : {"Photo5.png", "notes.txt", ".photo6.png"})
        QVERIFY(write(working(foreign), "x"));
    QVERIFY(QDir().mkdir(working("photo7.png")));
    QVERIFY(QFile::link(working("photo1.png"), working("photo8.png")));

    const QStringList photos = {"photo9.png", "photo2.png", "photo3.png", "photo1.png", "photo4.png"};
    QCOMPARE(WebcamUtil::getFileList({"photo*"}), photos);
    QCOMPARE(WebcamUtil::getTempPhotoNameList(), photos);
    QCOMPARE(
        WebcamUtil::getFileListFromDir(WebcamUtil::getTemporaryPath(), {}),
        QStringList({"photo9.png", "movie1.mov", "photo2.png", "photo3.png", "photo1.png", "photo4.png"}));
    QVERIFY(WebcamUtil::getFileListFromDir("", {}).isEmpty());
    QVERIFY(WebcamUtil::isSaveFile());
    QCOMPARE(WebcamUtil::m_savefilenameList.size(), 8);
}

void TestWorkingSet::pairsMovies()
{
    for (const char *name : {"movie1.mov", "movie1tmp.png", "movie2.mov", "movie3tmp.png", "photo4tmp.png"})
        QVERIFY(write(working(name), "x"));
    QCOMPARE(WebcamUtil::getMovieFileList(), QStringList({"movie1.mov"}));
    QCOMPARE(WebcamUtil::getLoadMovieFile(WebcamUtil::getTemporaryPath()),
             QStringList({"movie1.mov", "movie1tmp.png"}));
}

void TestWorkingSet::deletesCapturesOnly()
{
    for (const char *name : {"movie1.mov", "photo1.png", "notes.txt"})
        QVERIFY(write(working(name), "x"));
    WebcamUtil::deleteData();
    QCOMPARE(everything(working("")), QStringList({"notes.txt"}));
    QVERIFY(WebcamUtil::isMovieFile() && !WebcamUtil::isPhotoFile());
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
    if (across && !mountSaveFolder("size=16m"))
        QSKIP("only root can mount");
    const QByteArray movie(3'000'000, 'm');
    QVERIFY(write(working("movie1.mov"), movie) && write(working("movie1tmp.png"), "preview"));
    QVERIFY(write(working("photo1.png"), "one") && write(working("notes.txt"), "x"));
    QVERIFY(setTime(working("photo1.png"), 1000, 5));
    struct stat before = {};
    QCOMPARE(stat(QFile::encodeName(working("movie1.mov")), &before), 0);

    QVERIFY(WebcamUtil::saveData(base()));
    QCOMPARE(everything(working("")), QStringList({"notes.txt"}));
    QCOMPARE(everything(saved()), QStringList({"movie1.mov", "movie1tmp.png", "photo1.png"}));
    QCOMPARE(read(saved("movie1.mov")), movie);
    QCOMPARE(read(saved("photo1.png")), QByteArray("one"));
    struct stat after = {};
    QCOMPARE(stat(QFile::encodeName(saved("photo1.png")), &after), 0);
    QVERIFY(after.st_mtim.tv_sec == 1000 && after.st_mtim.tv_nsec == 5);
    QCOMPARE(stat(QFile::encodeName(saved("movie1.mov")), &after), 0);
    QCOMPARE(after.st_ino == before.st_ino && after.st_dev == before.st_dev, !across); // moved, not copied
    QCOMPARE(after.st_mode, before.st_mode);
}

void TestWorkingSet::clashKeepsTheSavedFile()
{
    QVERIFY(QDir().mkpath(saved()) && write(saved("photo1.png"), "older"));
    QVERIFY(write(working("photo1.png"), "newer") && write(working("photo2.png"), "two"));
    QVERIFY(WebcamUtil::saveData(base()));
    QCOMPARE(read(saved("photo1.png")), QByteArray("older"));
    QCOMPARE(read(saved("photo2.png")), QByteArray("two"));
    QVERIFY(everything(working("")).isEmpty());
}

void TestWorkingSet::nothingToSave()
{
    QVERIFY(!WebcamUtil::saveData(base()));
    QVERIFY(write(working("notes.txt"), "x"));
    QVERIFY(WebcamUtil::isSaveFile() && !WebcamUtil::saveData(base()));
}

void TestWorkingSet::obstaclesLoseNothing_data()
{
    QTest::addColumn<QString>("obstacle");
    for (const char *obstacle :
         {"file for a folder", "read-only disk", "folder", "link to the capture", "dangling"})
        QTest::newRow(obstacle) << obstacle;
}

void TestWorkingSet::obstaclesLoseNothing()
{
    QFETCH(QString, obstacle);
    QVERIFY(write(working("movie1.mov"), "movie") && write(working("movie1tmp.png"), "preview"));
    QVERIFY(QDir().mkpath(saved()));
    if (obstacle == "file for a folder") {
        QVERIFY(QDir(base() + "/VeltrixCamera").removeRecursively() && write(base() + "/VeltrixCamera", "x"));
    } else if (obstacle == "read-only disk") {
        if (!mountSaveFolder("ro"))
            QSKIP("only root can mount");
    } else if (obstacle == "folder") {
        QVERIFY(QDir().mkdir(saved("movie1tmp.png")));
    } else {
        const QString goal = obstacle == "dangling" ? saved("nowhere") : working("movie1.mov");
        QVERIFY(QFile::link(goal, saved("movie1.mov")));
    }
    QVERIFY(!WebcamUtil::saveData(base()));
    QCOMPARE(read(working("movie1.mov")), QByteArray("movie"));
    QCOMPARE(read(working("movie1tmp.png")), QByteArray("preview"));
    QVERIFY(everything(saved()).size() <= 1); // the obstacle alone: neither of the pair was left there
}

void TestWorkingSet::fullDiskKeepsPairsTogether()
{
    if (!mountSaveFolder("size=2m"))
        QSKIP("only root can mount");
    QVERIFY(write(working("photo1.png"), "older") && setTime(working("photo1.png"), 1000, 0));
    QVERIFY(write(working("movie1.mov"), QByteArray(3'000'000, 'm')) &&
            setTime(working("movie1.mov"), 2000, 0));
    QVERIFY(write(working("movie1tmp.png"), "preview") && setTime(working("movie1tmp.png"), 3000, 0));
    QVERIFY(write(working("photo2.png"), "newest") && setTime(working("photo2.png"), 4000, 0));
    QVERIFY(!WebcamUtil::saveData(base()));
    QCOMPARE(everything(saved()), QStringList({"photo2.png"}));
    QCOMPARE(everything(working("")), QStringList({"movie1.mov", "movie1tmp.png", "photo1.png"}));
    QCOMPARE(QFileInfo(working("movie1.mov")).size(), qint64(3'000'000));
}

// Whether the process has written into the open file behind one of its descriptors, but not yet all of it.
static bool isInTheMiddle(pid_t pid, qint64 size)
{
    const QDir descriptors(QString("/proc/%1/fdinfo").arg(pid));
    const QString folder = QString("/proc/%1/fd/").arg(pid);
    const QStringList names = descriptors.entryList(QDir::Files);
    for (const QString &name : names) {
        const QByteArray position = read(descriptors.filePath(name)).split('\n').value(0).mid(5).trimmed();
        if (QFile::symLinkTarget(folder + name).contains("/save/") && position.toLongLong() > 0)
            return position.toLongLong() < size;
    }
    return false;
}

void TestWorkingSet::killedCopyLeavesNothing()
{
    if (!mountSaveFolder("size=200m"))
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
    QCOMPARE(read(working("movie1.mov")), movie);
    QVERIFY(WebcamUtil::saveData(base()));
    QCOMPARE(read(saved("movie1.mov")), movie);
}

void TestWorkingSet::copyNeverReplaces()
{
    QVERIFY(write(working("photo1.png"), "new"));
    QVERIFY(QDir().mkpath(saved()) && write(saved("photo1.png"), "old"));
    QVERIFY(!copyFileWhole(working("photo1.png"), saved("photo1.png")));
    QCOMPARE(read(saved("photo1.png")), QByteArray("old"));
    QVERIFY(copyFileWhole(working("photo1.png"), saved("photo2.png")));
    QCOMPARE(read(saved("photo2.png")), QByteArray("new"));
    QVERIFY(!copyFileWhole(working("missing.png"), saved("photo3.png")));
    QCOMPARE(everything(saved()), QStringList({"photo1.png", "photo2.png"}));
}

QTEST_GUILESS_MAIN(TestWorkingSet)
#include "tst_workingset.moc"
