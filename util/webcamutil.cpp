#include "util/webcamutil.h"

#include "util/desktop/centring.h"
#include "util/desktop/messages.h"
#include "util/desktop/soundplayer.h"
#include "util/files/capturelist.h"
#include "util/files/capturenames.h"
#include "util/files/diskanswer.h"
#include "util/files/folders.h"
#include "util/files/freespace.h"
#include "util/files/saving.h"
#include "util/files/stamps.h"

#include <QDir>
#include <QFile>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <memory>
#include <optional>
#include <utility>

QString WebcamUtil::m_pictureDataPath;
QString WebcamUtil::m_apppath;
QStringList WebcamUtil::m_tempbmpfilenameList;
QStringList WebcamUtil::m_tempmoviefilenameList;
QStringList WebcamUtil::m_savefilenameList;

static void remove(const char *operation, const QString &path)
{
    if (!QFile::remove(path) && QFile::exists(path))
        noteFileFault(operation, path);
}

// False when the disk did not answer; that the file could not be removed is no matter.
static bool removeFile(const char *operation, const QString &path)
{
    return askDisk(operation, path, false, [operation, path] {
        remove(operation, path);
        return true;
    });
}

static QStringList listFiles(const char *operation, const QString &folder, const QStringList &filters)
{
    return askDisk(operation, folder, QStringList(), [=] { return filesOldestFirst(folder, filters); });
}

// Where something is in the working folder's place that must not be used; else empty.
static QString refusedWorkingFolder()
{
    const QString folder = workingFolder();
    return askDisk("refusedWorkingFolder", folder, QString(), [folder] {
        const bool isRefused = !folder.isEmpty() && !keepPrivate(folder) && errno != ENOENT;
        return isRefused ? folder : QString();
    });
}

static QStringList listMovies(const char *operation, const QString &folder)
{
    return askDisk(operation, folder, QStringList(), [folder] { return pairedMovies(folder); });
}

void WebcamUtil::setAppPath()
{
    m_apppath = makeHomeFolder();
}

QString WebcamUtil::getAppPath()
{
    if (m_apppath.isEmpty())
        setAppPath();
    return m_apppath;
}

QString WebcamUtil::getDocumentPath()
{
    return QDir::homePath();
}

void WebcamUtil::setTemporaryPath()
{
    m_pictureDataPath = askDisk("setTemporaryPath", QDir::tempPath(), QString(), makeWorkingFolder);
}

QString WebcamUtil::getTemporaryPath()
{
    if (m_pictureDataPath.isEmpty())
        setTemporaryPath();
    return m_pictureDataPath;
}

QString WebcamUtil::existingTemporaryPath()
{
    m_pictureDataPath =
        askDisk("existingTemporaryPath", m_pictureDataPath, QString(),
                [known = m_pictureDataPath] { return keepPrivate(known) ? known : makeWorkingFolder(); });
    return m_pictureDataPath;
}

void WebcamUtil::deleteTemporaryPath()
{
    askDisk("deleteTemporaryPath", m_pictureDataPath, false, [path = m_pictureDataPath] {
        removeWorkingFolder(path);
        return true;
    });
    m_pictureDataPath.clear();
}

QString WebcamUtil::CreateSavePath(const QString &base)
{
    return askDisk("CreateSavePath", base, QString(), [base] { return makeSaveFolder(base); });
}

QString WebcamUtil::CurrentTimeQString()
{
    return millisecondsStamp();
}

QString WebcamUtil::CreatePhotofilename()
{
    return photoPrefix + CurrentTimeQString() + photoEnding;
}

QString WebcamUtil::CreateTempPhotofilename()
{
    return photoPrefix + CurrentTimeQString() + temporaryMark + photoEnding;
}

QString WebcamUtil::CreateMoviefilename()
{
    return getTemporaryPath() + "/" + moviePrefix + CurrentSecondsQString() + movieEnding;
}

QString WebcamUtil::CreateTempMoviefilename()
{
    return getTemporaryPath() + "/" + moviePrefix + CurrentSecondsQString() + temporaryMark + photoPrefix;
}

QString WebcamUtil::previewName(QString movie)
{
    return ::previewName(std::move(movie));
}

QString WebcamUtil::movieName(QString preview)
{
    return ::movieName(std::move(preview));
}

void WebcamUtil::deletetmpfile(const QString &path)
{
    removeFile("deletetmpfile", path);
}

void WebcamUtil::moveToCenter(QWidget *widget, QWidget *)
{
    centreOnDesktop(widget);
}

void WebcamUtil::setTempMovieFilnameList() {}

void WebcamUtil::setTempBmpFilenameList()
{
    m_tempbmpfilenameList = getFileList({photoFilter()});
}

QStringList WebcamUtil::getTempPhotoNameList()
{
    setTempBmpFilenameList();
    return m_tempbmpfilenameList;
}

bool WebcamUtil::isSaveFile()
{
    using Found = std::optional<std::pair<QString, QStringList>>; // the folder, and what is in it
    const Found found = askDisk("isSaveFile", m_pictureDataPath, Found(), [known = m_pictureDataPath] {
        const QString folder = keepPrivate(known) ? known : makeWorkingFolder();
        return Found({folder, filesOldestFirst(folder, {})});
    });
    if (!found)
        return true;
    m_pictureDataPath = found->first;
    if (!found->second.isEmpty())
        m_savefilenameList = found->second;
    return !found->second.isEmpty();
}

QStringList WebcamUtil::getFileList(const QStringList &filters)
{
    return getFileListFromDir(getTemporaryPath(), filters);
}

QStringList WebcamUtil::getFileListFromDir(const QString &dir, const QStringList &filters)
{
    return askDisk("getFileListFromDir", dir, QStringList(),
                   [=] { return capturesOldestFirst(dir, filters); });
}

bool WebcamUtil::isPhotoFile()
{
    const QStringList filters = {photoFilter(QLatin1String(".bmp"))};
    return !listFiles("isPhotoFile", getTemporaryPath(), filters).isEmpty();
}

bool WebcamUtil::isMovieFile()
{
    return !listFiles("isMovieFile", getTemporaryPath(), {}).isEmpty();
}

QStringList WebcamUtil::getMovieFileList()
{
    return listMovies("getMovieFileList", getTemporaryPath());
}

QStringList WebcamUtil::getLoadMovieFile(const QString &dir)
{
    QStringList pairs;
    const QStringList movies = listMovies("getLoadMovieFile", dir);
    for (const QString &movie : movies)
        pairs << movie << previewName(movie);
    return pairs;
}

void WebcamUtil::deleteData()
{
    const QString folder = getTemporaryPath();
    const QStringList names = getFileList({});
    askDisk("deleteData", folder, false, [folder, names] {
        for (const QString &name : names)
            remove("deleteData", folder + "/" + name);
        return true;
    });
}

static bool moveAll(const QString &working, const QString &base, const QStringList &except,
                    const std::function<void()> &giveSign)
{
    // Once: a save that runs past midnight stays in one folder.
    const QString save = makeSaveFolder(base);
    if (save.isEmpty())
        return false;
    giveSign();
    QStringList captures = capturesOldestFirst(working, {photoFilter(), movieFilter()});
    for (const QString &name : except)
        captures.removeAll(name);
    return !captures.isEmpty() && moveCaptures(captures, working, save, giveSign);
}

// Waits for as long as it goes on, also for a disk that has to wake up first. A folder on a server that has
// died would keep the program for ever.
static bool moveAside(const QString &working, const QString &base, const QStringList &except)
{
    using Clock = std::chrono::steady_clock;
    constexpr auto patience = std::chrono::minutes(2);
    const auto lastSign = std::make_shared<std::atomic<Clock::time_point>>(Clock::now());
    auto moved =
        startAside([=] { return moveAll(working, base, except, [lastSign] { *lastSign = Clock::now(); }); });
    const auto isOver = [&] { return isReady(moved) || Clock::now() - lastSign->load() > patience; };
    waitAlive(isOver, noLimit, Input::KeptThroughout);
    if (!isReady(moved))
        noteSilentDisk("saveData", base);
    return isReady(moved) && moved.get();
}

bool WebcamUtil::saveData(const QString &dir, const QStringList &except)
{
    const QString working = getTemporaryPath();
    return !working.isEmpty() && moveAside(working, dir, except);
}

void WebcamUtil::infoMessage(const QString &text, QWidget *parent)
{
    showMessage(QMessageBox::Information, text, parent);
}

void WebcamUtil::CriticalMessage(const QString &text, QWidget *parent)
{
    showMessage(QMessageBox::Critical, text, parent);
}

void WebcamUtil::WarningMessage(const QString &text, QWidget *parent)
{
    showWarningOnTop(text, parent);
}

void WebcamUtil::ShowDiskWorningMessage(QWidget *parent)
{
    const QString refused = refusedWorkingFolder();
    const QString text =
        refused.isEmpty()
            ? tr("The disk free space is insufficient.\n") +
                  tr("Taking a picture is discontinued. Please secure the free space. ")
            : tr("Nothing can be taken while this folder is a link or is not yours alone:\n") + refused;
    showMessage(QMessageBox::Warning, text, parent);
}

bool WebcamUtil::chkdiskFreeSpace()
{
    const QString folder = existingTemporaryPath();
    return !folder.isEmpty() && askDisk("chkdiskFreeSpace", folder, false, [folder] {
        const bool isEnough = enoughFreeSpaceAt(folder);
        if (!isEnough)
            noteFullDisk("chkdiskFreeSpace", folder);
        return isEnough;
    });
}

bool WebcamUtil::hasWriteAccess(const QString &path)
{
    return askDisk("hasWriteAccess", path, false, [path] { return isWritableFolder(path); });
}

bool WebcamUtil::canlaunch(const QString &name)
{
    return canLaunch(name);
}

QString WebcamUtil::playsound()
{
    return findSoundPlayer();
}
