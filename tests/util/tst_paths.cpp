#include "util/freespace.h"
#include "util/stamps.h"
#include "util/webcamutil.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

// Folders, stamps and names, and the checks made on folders.
class TestPaths : public QObject
{
    Q_OBJECT

    QString workingFolder() const { return m_tmp->filePath("VeltrixCamera_" + QString::number(geteuid())); }

    const QByteArray m_systemTmp = qgetenv("TMPDIR");
    QScopedPointer<QTemporaryDir> m_tmp;

private slots:
    void init();
    void cleanup() { qputenv("TMPDIR", m_systemTmp); }
    void stampsAndNames();
    void workingFolderIsMadeForTheUserAlone();
    void workingFolderThatIsNotOursIsRefused();
    void saveFolder();
    void freeSpace();
    void writeAccess();
    void launching();
};

void TestPaths::init()
{
    m_tmp.reset(new QTemporaryDir);
    qputenv("TMPDIR", QFile::encodeName(m_tmp->path()));
    WebcamUtil::m_pictureDataPath.clear();
}

void TestPaths::stampsAndNames()
{
    QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt)); // has digits of its own
    const QDateTime morning(QDate(2024, 1, 2), QTime(3, 4, 5, 7));
    QCOMPARE(CurrentDateQString(morning), QString("20240102"));
    QCOMPARE(CurrentSecondsQString(morning), QString("20240102030405"));
    QCOMPARE(millisecondsStamp(morning), QString("20240102030405007"));
    const QString names =
        QStringList{WebcamUtil::CreatePhotofilename(), WebcamUtil::CreateTempPhotofilename(),
                    WebcamUtil::CreateMoviefilename(), WebcamUtil::CreateTempMoviefilename()}
            .join(' ');
    const QString folder = QRegularExpression::escape(workingFolder());
    const QString pattern =
        "^photo\\d{17}\\.png photo\\d{17}tmp\\.png %1/movie\\d{14}\\.mov %1/movie\\d{14}tmpphoto$";
    QVERIFY2(QRegularExpression(pattern.arg(folder)).match(names).hasMatch(), qPrintable(names));
    const QDateTime stamped = QDateTime::fromString(WebcamUtil::CurrentTimeQString(), "yyyyMMddhhmmsszzz");
    QVERIFY(qAbs(stamped.msecsTo(QDateTime::currentDateTime())) < 5000);
    QLocale::setDefault(QLocale::c());
}

void TestPaths::workingFolderIsMadeForTheUserAlone()
{
    const QString tmp = m_tmp->filePath("tmp");
    qputenv("TMPDIR", QFile::encodeName(tmp));
    QCOMPARE(WebcamUtil::getTemporaryPath(), QString());
    QVERIFY(QDir().mkdir(tmp));
    const QString folder = WebcamUtil::getTemporaryPath();
    QCOMPARE(folder, tmp + "/VeltrixCamera_" + QString::number(geteuid()));
    struct stat status = {};
    QCOMPARE(lstat(QFile::encodeName(folder), &status), 0);
    QCOMPARE(status.st_mode, mode_t(S_IFDIR | 0700));

    QVERIFY(QFile(folder + "/notes.txt").open(QIODevice::WriteOnly));
    QVERIFY(QFile(m_tmp->filePath("keep")).open(QIODevice::WriteOnly));
    WebcamUtil::deleteTemporaryPath();
    QVERIFY(QDir(folder).exists()); // it is not empty
    QVERIFY(WebcamUtil::m_pictureDataPath.isEmpty());
    QVERIFY(QFile::remove(WebcamUtil::getTemporaryPath() + "/notes.txt"));
    WebcamUtil::deleteTemporaryPath();
    QVERIFY(!QDir(tmp).exists() && QDir(m_tmp->path()).exists());
}

void TestPaths::workingFolderThatIsNotOursIsRefused()
{
    const QByteArray path = QFile::encodeName(workingFolder());
    const QByteArray away = QFile::encodeName(m_tmp->filePath("away"));
    for (const QByteArray obstacle : {"file", "link", "foreign"}) {
        if (obstacle == "file")
            QVERIFY(QFile(workingFolder()).open(QIODevice::WriteOnly));
        else if (obstacle == "link")
            QVERIFY(mkdir(away, 0700) == 0 && symlink(away, path) == 0);
        else if (geteuid() != 0)
            QSKIP("only root can give a folder away");
        else
            QVERIFY(mkdir(path, 0777) == 0 && chown(path, 12345, 12345) == 0);
        QCOMPARE(WebcamUtil::getTemporaryPath(), QString());
        QVERIFY(!WebcamUtil::chkdiskFreeSpace() && !WebcamUtil::isSaveFile());
        QVERIFY(!WebcamUtil::saveData(m_tmp->path()));
        QVERIFY(rename(path, QByteArray(away + obstacle)) == 0); // out of the way: every call tries again
        QCOMPARE(WebcamUtil::getTemporaryPath(), workingFolder());
        WebcamUtil::deleteTemporaryPath();
    }
}

void TestPaths::saveFolder()
{
    const QString today = QDate::currentDate().toString("yyyyMMdd");
    const QString expected = m_tmp->filePath("a/b/VeltrixCamera/" + today);
    QCOMPARE(WebcamUtil::CreateSavePath(m_tmp->filePath("a/b")), expected);
    QVERIFY(QDir(expected).exists());
    QCOMPARE(WebcamUtil::CreateSavePath(m_tmp->filePath("a/b")), expected);
    QVERIFY(QFile(m_tmp->filePath("file")).open(QIODevice::WriteOnly));
    QVERIFY(WebcamUtil::CreateSavePath(m_tmp->filePath("file")).isNull());

    QCOMPARE(WebcamUtil::getDocumentPath(), QDir::homePath());
    qputenv("HOME", QFile::encodeName(m_tmp->filePath("new/home")));
    QCOMPARE(WebcamUtil::getAppPath(), m_tmp->filePath("new/home"));
    QVERIFY(QDir(m_tmp->filePath("new/home")).exists());
}

void TestPaths::freeSpace()
{
    const fsblkcnt_t blocks = 300 * 1024 / 4;
    QVERIFY(!enoughFreeSpace(4096, blocks) && enoughFreeSpace(4096, blocks + 1));
    QVERIFY(enoughFreeSpace(1 << 20, fsblkcnt_t(1) << 44)); // past 64 bits of bytes

    const QString folder = WebcamUtil::getTemporaryPath();
    QVERIFY(QDir().rmdir(folder));
    WebcamUtil::chkdiskFreeSpace();
    QVERIFY(QDir(folder).exists());
}

void TestPaths::writeAccess()
{
    QVERIFY(QDir(m_tmp->path()).mkpath("folder/.hidden"));
    QCOMPARE(mkdir(QFile::encodeName(m_tmp->filePath("readonly")), 0555), 0);
    QVERIFY(QFile::link(m_tmp->filePath("folder"), m_tmp->filePath("link")));
    QVERIFY(QFile(m_tmp->filePath("file")).open(QIODevice::WriteOnly));
    for (const QString name : {"folder", "folder/", "folder/.hidden"})
        QVERIFY2(WebcamUtil::hasWriteAccess(m_tmp->filePath(name)), qPrintable(name));
    for (const QString &path : {m_tmp->filePath("link"), m_tmp->filePath("file"), m_tmp->filePath("missing"),
                                QString("/"), QString()})
        QVERIFY2(!WebcamUtil::hasWriteAccess(path), qPrintable(path));
    QCOMPARE(WebcamUtil::hasWriteAccess(m_tmp->filePath("readonly")), geteuid() == 0); // root may
}

void TestPaths::launching()
{
    const QByteArray systemPath = qgetenv("PATH");
    const QString which = QStandardPaths::findExecutable("which");
    QTemporaryDir tools("/tmp/oXXXXXX"); // short, as the answer is read up to 31 characters
    const auto addTool = [](const QString &path) {
        QFile tool(path);
        return tool.open(QIODevice::WriteOnly) && tool.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    };
    QVERIFY(QFile::link(which, tools.filePath("which")));
    qputenv("PATH", QFile::encodeName(m_tmp->path() + ":" + tools.path()));
    QVERIFY(addTool(m_tmp->filePath("play")));
    QVERIFY(m_tmp->filePath("play").size() > 30);
    QCOMPARE(WebcamUtil::playsound(), QString());
    QVERIFY(addTool(tools.filePath("aplay")));
    QCOMPARE(WebcamUtil::playsound(), QString("aplay"));
    qputenv("PATH", QFile::encodeName(tools.path()));
    QVERIFY(addTool(tools.filePath("play")));
    QCOMPARE(WebcamUtil::playsound(), QString("play"));
    qputenv("PATH", systemPath);
}

QTEST_GUILESS_MAIN(TestPaths)
#include "tst_paths.moc"
