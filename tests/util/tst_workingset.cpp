#include "util/files/freespace.h"
#include "util/webcamutil.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

#include <fcntl.h>
#include <functional>
#include <memory>
#include <mutex>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

// Whoever holds it lets the disk hang: this look at a file is found before the C library's.
static std::mutex disk;
extern "C" int lstat(const char *path, struct stat *status) noexcept
{
    const std::lock_guard<std::mutex> answer(disk);
    return fstatat(AT_FDCWD, path, status, AT_SYMLINK_NOFOLLOW);
}

// Likewise the making of folders, but for one that ThreadSanitizer makes before it can watch.
static bool isTestBegun = false;
static std::mutex folders;
static void waitForFolders()
{
    const std::lock_guard<std::mutex> answer(folders);
}
extern "C" __attribute__((no_sanitize("thread"))) int mkdir(const char *path, mode_t mode) noexcept
{
    if (isTestBegun)
        waitForFolders();
    return int(syscall(SYS_mkdir, path, mode));
}

// Makes all threads another user's.
static bool becomeUser(uid_t user)
{
    return setegid(user) == 0 && seteuid(user) == 0;
}

// The folders whose names were brought to the disk while the working copy was still there.
static QString workingCopy;
static QStringList synced;
extern "C" int fsync(int file)
{
    if (QFile::exists(workingCopy))
        synced += QFile::symLinkTarget("/proc/self/fd/" + QString::number(file));
    return int(syscall(SYS_fsync, file));
}

// The working folder and its names, what it lists, and the move into the save folder.
class TestWorkingSet : public QObject
{
    Q_OBJECT

    static bool write(const QString &path, const QByteArray &content, timespec time = {0, UTIME_NOW})
    {
        QFile file(path);
        const timespec times[] = {time, time};
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush() &&
               utimensat(AT_FDCWD, QFile::encodeName(path), times, 0) == 0;
    }
    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    static QStringList everything(const QString &folder)
    {
        return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                      QDir::Name);
    }
    static QString working(const QString &name = QString())
    {
        return WebcamUtil::getTemporaryPath() + "/" + name;
    }
    QString base() const { return m_tmp->filePath("save"); }
    QString saved(const QString &name = QString()) const
    {
        return base() + "/VeltrixCamera/" + QDate::currentDate().toString("yyyyMMdd") + "/" + name;
    }
    // Runs a command line with $working and $saved.
    bool shell(const QString &command) const
    {
        const QString variables = "working=" + working() + "; saved=" + saved().chopped(1) + "; ";
        return QProcess::execute("sh", {"-ec", variables + command}) == 0;
    }

    const QString m_systemTmp = QDir::tempPath();
    std::unique_ptr<QTemporaryDir> m_tmp;

private slots:
    void init()
    {
        isTestBegun = true;
        m_tmp = std::make_unique<QTemporaryDir>(m_systemTmp + "/XXXXXX");
        qputenv("TMPDIR", QFile::encodeName(m_tmp->path()));
        WebcamUtil::m_pictureDataPath.clear();
        QVERIFY(QDir().mkpath(saved()));
    }

    void cleanup() const { shell("umount -lq $working || umount -lq $saved || true"); }

    void namesAndFreeSpace()
    {
        QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt)); // has digits of its own
        const QStringList names = {WebcamUtil::CreatePhotofilename(), WebcamUtil::CreateMoviefilename()};
        const QString saveFolder = WebcamUtil::CreateSavePath(base());
        QLocale::setDefault(QLocale::c());
        const QString pattern = "^photo\\d{17}\\.png %1movie\\d{14}\\.mov$";
        const QRegularExpression expected(pattern.arg(QRegularExpression::escape(working())));
        QVERIFY2(expected.match(names.join(' ')).hasMatch(), qPrintable(names.join(' ')));
        const QDateTime stamped = QDateTime::fromString(names[0].mid(5, 17), "yyyyMMddhhmmsszzz");
        QVERIFY(qAbs(stamped.msecsTo(QDateTime::currentDateTime())) < 5000);
        QCOMPARE(saveFolder + "/", saved());

        const fsblkcnt_t blocksOf300MiB = 300 * 1024 / 4;
        QVERIFY(!enoughFreeSpace(4096, blocksOf300MiB) && enoughFreeSpace(4096, blocksOf300MiB + 1));
        QVERIFY(enoughFreeSpace(1 << 20, fsblkcnt_t(1) << 44)); // past 64 bits of bytes
    }

    void workingFolderIsOfThisUserAlone()
    {
        const QString path = m_tmp->filePath("VeltrixCamera_" + QString::number(geteuid()));
        const QByteArray folder = QFile::encodeName(path);
        QCOMPARE(WebcamUtil::getTemporaryPath(), path);
        struct stat status = {};
        QVERIFY(lstat(folder, &status) == 0 && status.st_mode == (S_IFDIR | 0700));
        QVERIFY(chmod(folder, 0577) == 0 && WebcamUtil::chkdiskFreeSpace());
        QVERIFY(lstat(folder, &status) == 0 && status.st_mode == (S_IFDIR | 0700));
        for (const bool isLink : {true, false}) {
            WebcamUtil::deleteTemporaryPath();
            if (isLink)
                QCOMPARE(symlink(QFile::encodeName(base()), folder), 0);
            else if (mkdir(folder, 0700) != 0 || chown(folder, 12345, 12345) != 0)
                QSKIP("only root can give a folder away");
            QCOMPARE(WebcamUtil::getTemporaryPath(), QString());
            QVERIFY(!WebcamUtil::chkdiskFreeSpace() && !WebcamUtil::isSaveFile());
            QVERIFY(!WebcamUtil::saveData(base()));
            QCOMPARE(remove(folder), 0);
            QCOMPARE(WebcamUtil::getTemporaryPath(), path); // every call tries again
        }
    }

    void listsPairsAndDeletes()
    {
        QVERIFY(!WebcamUtil::isSaveFile() && !WebcamUtil::saveData(base()));
        // Two after two at one moment, the moments a billionth of a second apart.
        const QStringList names = {"photo9.png", "notes.txt",     "photo3.png", "photo2.png",
                                   "photo1.png", "movie1.mov",    "movie2.mov", "movie1tmp.png",
                                   "Photo5.png", "movie3tmp.png", "photo4.png"};
        for (int i = 0; i < names.size(); ++i)
            QVERIFY(write(working(names[i]), "x", {1000, i / 2}));
        QVERIFY(write(working(".photo6.png"), "x") && QDir().mkdir(working("photo7.png")));
        QVERIFY(QFile::link(working("photo1.png"), working("photo8.png")));

        const QStringList photos = {"photo9.png", "photo2.png", "photo3.png", "photo1.png", "photo4.png"};
        QCOMPARE(WebcamUtil::getTempPhotoNameList(), photos);
        QCOMPARE(WebcamUtil::getLoadMovieFile(working()), QStringList({"movie1.mov", "movie1tmp.png"}));
        QVERIFY(WebcamUtil::isSaveFile());

        WebcamUtil::deleteData();
        const QStringList left = {".photo6.png", "Photo5.png", "notes.txt", "photo7.png", "photo8.png"};
        QCOMPARE(everything(working()), left);
        QVERIFY(WebcamUtil::isSaveFile() && !WebcamUtil::saveData(base())); // no capture among them
    }

    void aDiskThatHangsKeepsNobodyWaiting()
    {
        QVERIFY(write(working("photo1.png"), "x"));
        const struct {
            const char *name;
            std::function<bool()> answersAsFailed;
        } operations[] = {
            {"getFileListFromDir", [] { return WebcamUtil::getFileListFromDir(working(), {}).isEmpty(); }},
            {"isSaveFile", [] { return WebcamUtil::isSaveFile(); }},
            {"existingTemporaryPath", [] { return !WebcamUtil::chkdiskFreeSpace(); }},
        };
        for (const auto &operation : operations) {
            const std::lock_guard<std::mutex> hanging(disk);
            const QRegularExpression line(QString("^%1: .*VeltrixCamera").arg(operation.name));
            QTest::ignoreMessage(QtWarningMsg, line);
            QElapsedTimer time;
            time.start();
            int beats = 0;
            QTimer heart;
            connect(&heart, &QTimer::timeout, this, [&beats] { ++beats; });
            heart.start(100);
            QVERIFY2(operation.answersAsFailed(), operation.name);
            QVERIFY2(time.elapsed() < 2500 && beats > 10, operation.name);
        }
        QVERIFY(WebcamUtil::chkdiskFreeSpace());
        QStringList names;
        std::thread([&] { names = WebcamUtil::getFileListFromDir(working(), {}); }).join();
        QCOMPARE(names, QStringList{"photo1.png"});
    }

    void aDiskThatWakesUpIsWaitedFor()
    {
        QVERIFY(write(working("photo1.png"), "x") && QDir(m_tmp->filePath("save")).removeRecursively());
        std::unique_lock<std::mutex> asleep(folders);
        QTimer awakening;
        connect(&awakening, &QTimer::timeout, this, [&asleep] { asleep.unlock(); });
        awakening.setSingleShot(true);
        awakening.start(3000);
        QVERIFY(WebcamUtil::saveData(base()));
        QVERIFY(!asleep.owns_lock());
        QCOMPARE(everything(saved()), QStringList{"photo1.png"});
    }

    void savesAll()
    {
        const QByteArray movie(64 << 20, 'm');
        for (const bool across : {false, true}) {
            init();
            if (across && !shell("mount -t tmpfs -o size=100m tmpfs $saved"))
                QSKIP("only root can mount");
            QVERIFY(write(working("movie1.mov"), movie) && write(working("movie1tmp.png"), "preview"));
            QVERIFY(write(working("photo1.png"), "one", {1000, 5000000}) && write(working("notes.txt"), "x"));
            QVERIFY(write(working("photo2.png"), "newer") && write(saved("photo2.png"), "older"));
            int beats = 0; // of the thread that paints
            QTimer heart;
            connect(&heart, &QTimer::timeout, this, [&beats] { ++beats; });
            heart.start(1);
            QVERIFY(WebcamUtil::saveData(base()));
            QVERIFY(!across || beats > 2);
            QCOMPARE(everything(working()), QStringList({"notes.txt"}));
            QCOMPARE(everything(saved()).join(' '),
                     QString("movie1.mov movie1tmp.png photo1.png photo2.png"));
            QVERIFY(read(saved("movie1.mov")) == movie && read(saved("photo1.png")) == "one");
            QCOMPARE(read(saved("photo2.png")), QByteArray("older")); // a clash keeps what was saved first
            QCOMPARE(QFileInfo(saved("photo1.png")).lastModified().toMSecsSinceEpoch(), 1000005);
        }
    }

    void newFoldersAreSharedAndLast()
    {
        for (const auto &[base, made] : {std::pair(0755U, 0755U), std::pair(0777U, 01777U),
                                         std::pair(02770U, 03775U), std::pair(0775U, 01775U)}) {
            init();
            QVERIFY(QDir(m_tmp->filePath("save")).removeRecursively() && write(working("photo1.png"), "x"));
            const QString folder = m_tmp->filePath("save");
            QVERIFY(QDir().mkdir(folder));
            constexpr gid_t teachers = 12345;
            const bool isOthers = chown(QFile::encodeName(folder), uid_t(-1), teachers) == 0; // of root alone
            QCOMPARE(chmod(QFile::encodeName(folder), base), 0);
            workingCopy = working("photo1.png");
            synced.clear();
            QVERIFY(WebcamUtil::saveData(folder));
            for (const QString &path : QStringList{saved().chopped(1), folder + "/VeltrixCamera"}) {
                struct stat status = {};
                QCOMPARE(stat(QFile::encodeName(path), &status), 0);
                QCOMPARE(status.st_mode & 07777U, made);
                const bool isShared = base & S_IWGRP && !(base & S_IWOTH);
                QCOMPARE(status.st_gid == teachers, isOthers && isShared);
                QVERIFY2(synced.contains(path), qPrintable(synced.join(' ')));
            }
            QVERIFY2(synced.contains(folder), qPrintable(synced.join(' ')));
        }
    }

    void twoUsersSaveIntoOneFolder()
    {
        const QTemporaryDir open("/dev/shm/orvane-test.XXXXXX");
        const QString save = open.filePath("save");
        QVERIFY(QDir().mkdir(save));
        QVERIFY(chmod(QFile::encodeName(open.path()), 0755) == 0 &&
                chmod(QFile::encodeName(save), 0777) == 0);
        QStringList names;
        for (const uid_t user : {12345U, 12346U, 12345U}) { // the first once more, in what is the other's
            const QString temporary = open.filePath(QString::number(user));
            QDir().mkdir(temporary);
            if (chown(QFile::encodeName(temporary), user, user) != 0 || !becomeUser(user))
                QSKIP("only root can be several users");
            qputenv("TMPDIR", QFile::encodeName(temporary));
            WebcamUtil::m_pictureDataPath.clear();
            names += QString("photo%1.png").arg(names.size());
            const bool isSaved = write(working(names.last()), "x") && WebcamUtil::saveData(save);
            QVERIFY(seteuid(0) == 0 && setegid(0) == 0);
            QVERIFY(isSaved);
            const QString today = save + "/VeltrixCamera/" + QDate::currentDate().toString("yyyyMMdd");
            QCOMPARE(everything(today), names);
            QCOMPARE(QFileInfo(today + '/' + names.last()).ownerId(), user);
        }
    }

    // Each is moved before the next is begun with: what cannot be removed is the last that stands in both
    // places.
    void stopsAtASourceThatStays()
    {
        for (const char *name : {"photo1.png", "photo2.png", "photo3.png"})
            QVERIFY(write(working(name), name, {1000, name[5]}));
        if (!shell("mount --bind $working/photo2.png $working/photo2.png"))
            QSKIP("only root can mount");
        QVERIFY(!WebcamUtil::saveData(base()));
        QCOMPARE(everything(saved()), QStringList({"photo2.png", "photo3.png"}));
        QCOMPARE(everything(working()), QStringList({"photo1.png", "photo2.png"}));
        QVERIFY(shell("umount $working/photo2.png"));
    }

    void obstaclesLoseNothing()
    {
        const QByteArray movie(3'000'000, 'm');
        for (const char *obstacle :
             {"rmdir $saved; touch $saved", "mkdir $saved/movie1tmp.png", "ln -s $working/movie1.mov $saved",
              "ln -s nowhere $saved/movie1.mov", "mount -t tmpfs -o ro tmpfs $saved",
              "mount -t tmpfs -o size=2m tmpfs $saved", "mount --bind -o ro $working $working"}) {
            init();
            QVERIFY(write(working("photo1.png"), "older", {1000, 0}) && write(working("movie1.mov"), movie));
            QVERIFY(write(working("movie1tmp.png"), "preview"));
            if (!shell(obstacle)) {
                QVERIFY2(QByteArray(obstacle).startsWith("mount"), obstacle);
                QSKIP("only root can mount");
            }
            const QStringList before = everything(saved());
            const bool isSaved = WebcamUtil::saveData(base());
            // Nothing has come beside the obstacle, unless it is whole.
            QVERIFY2(everything(saved()) == before || read(saved("movie1.mov")) == movie, obstacle);
            cleanup();
            QVERIFY2(!isSaved && read(working("movie1.mov")) == movie, obstacle);
            QVERIFY2(read(working("movie1tmp.png")) == "preview", obstacle);
            QVERIFY2(read(working("photo1.png")) == "older", obstacle); // the first failure is the end
        }
    }
};

QTEST_GUILESS_MAIN(TestWorkingSet)
#include "tst_workingset.moc"
