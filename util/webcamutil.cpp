#include "util/webcamutil.h"

#include "util/desktop/centring.h"
#include "util/desktop/messages.h"
#include "util/desktop/soundplayer.h"
#include "util/files/alivewait.h"
#include "util/files/capturelist.h"
#include "util/files/capturenames.h"
#include "util/files/folders.h"
#include "util/files/freespace.h"
#include "util/files/saving.h"
#include "util/files/stamps.h"

#include <QDir>
#include <QFile>

QString WebcamUtil::m_pictureDataPath;
QString WebcamUtil::m_apppath;
QStringList WebcamUtil::m_tempbmpfilenameList;
QStringList WebcamUtil::m_tempmoviefilenameList;
QStringList WebcamUtil::m_savefilenameList;

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
    m_pictureDataPath = makeWorkingFolder();
}

QString WebcamUtil::getTemporaryPath()
{
    if (m_pictureDataPath.isEmpty())
        setTemporaryPath();
    return m_pictureDataPath;
}

QString WebcamUtil::existingTemporaryPath()
{
    if (!isOwnFolder(m_pictureDataPath))
        m_pictureDataPath.clear();
    return getTemporaryPath();
}

void WebcamUtil::deleteTemporaryPath()
{
    removeWorkingFolder(m_pictureDataPath);
    m_pictureDataPath.clear();
}

QString WebcamUtil::CreateSavePath(const QString &base)
{
    return makeSaveFolder(base);
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
    QFile::remove(path);
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
    const QStringList names = filesOldestFirst(getTemporaryPath(), {});
    if (names.isEmpty())
        return false;
    m_savefilenameList = names;
    return true;
}

QStringList WebcamUtil::getFileList(const QStringList &filters)
{
    return capturesOldestFirst(getTemporaryPath(), filters);
}

QStringList WebcamUtil::getFileListFromDir(const QString &dir, const QStringList &filters)
{
    return capturesOldestFirst(dir, filters);
}

bool WebcamUtil::isPhotoFile()
{
    return !filesOldestFirst(getTemporaryPath(), {photoFilter(QLatin1String(".bmp"))}).isEmpty();
}

bool WebcamUtil::isMovieFile()
{
    return !filesOldestFirst(getTemporaryPath(), {}).isEmpty();
}

QStringList WebcamUtil::getMovieFileList()
{
    return pairedMovies(getTemporaryPath());
}

QStringList WebcamUtil::getLoadMovieFile(const QString &dir)
{
    QStringList pairs;
    const QStringList movies = pairedMovies(dir);
    for (const QString &movie : movies)
        pairs << movie << previewName(movie);
    return pairs;
}

void WebcamUtil::deleteData()
{
    removeCaptures(getTemporaryPath());
}

bool WebcamUtil::saveData(const QString &dir)
{
    const QString working = getTemporaryPath();
    if (working.isEmpty())
        return false;
    // Once: a save that runs past midnight stays in one folder.
    const QString save = CreateSavePath(dir);
    if (save.isEmpty())
        return false;
    const QStringList captures = getFileList({photoFilter(), movieFilter()});
    const auto move = [=] { return moveCaptures(captures, working, save); };
    return !captures.isEmpty() && doAside(move, noLimit, Input::KeptThroughout).value_or(false);
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
    const QString text = tr("The disk free space is insufficient.\n") +
                         tr("Taking a picture is discontinued. Please secure the free space. ");
    showMessage(QMessageBox::Warning, text, parent);
}

bool WebcamUtil::chkdiskFreeSpace()
{
    return enoughFreeSpaceAt(existingTemporaryPath());
}

bool WebcamUtil::hasWriteAccess(const QString &path)
{
    return isWritableFolder(path);
}

bool WebcamUtil::canlaunch(const QString &name)
{
    return canLaunch(name);
}

QString WebcamUtil::playsound()
{
    return findSoundPlayer();
}
