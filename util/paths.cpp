#include "util/stamps.h"
#include "util/webcamutil.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

QString WebcamUtil::m_pictureDataPath;
QString WebcamUtil::m_apppath;
QStringList WebcamUtil::m_tempbmpfilenameList;
QStringList WebcamUtil::m_tempmoviefilenameList;
QStringList WebcamUtil::m_savefilenameList;

static const QString folderName = QStringLiteral("/VeltrixCamera");

// The temporary folder belongs to everybody: whoever takes the name first, or lays a link there, would see
// the captures or choose where they go. So only a real folder of this user will do.
static bool isOwnFolder(const QByteArray &path)
{
    struct stat status = {};
    return lstat(path, &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == geteuid();
}

static bool makeOwnFolder(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    mkdir(name, S_IRWXU); // may exist already
    return isOwnFolder(name);
}

void WebcamUtil::setAppPath()
{
    const QDir home(QDir::homePath());
    const QString path = home.absolutePath();
    m_apppath = home.exists() || home.mkpath(path) ? path : QString();
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
    m_pictureDataPath.clear();
    const QString temporary = QDir::tempPath(); // empty when it does not exist
    if (temporary.isEmpty())
        return;
    const QString path = QDir(temporary + folderName + "_" + QString::number(geteuid())).absolutePath();
    if (makeOwnFolder(path))
        m_pictureDataPath = path;
}

QString WebcamUtil::getTemporaryPath()
{
    if (m_pictureDataPath.isEmpty())
        setTemporaryPath();
    return m_pictureDataPath;
}

QString WebcamUtil::existingTemporaryPath()
{
    if (!isOwnFolder(QFile::encodeName(m_pictureDataPath)))
        m_pictureDataPath.clear();
    return getTemporaryPath();
}

void WebcamUtil::deleteTemporaryPath()
{
    const QString path =
        m_pictureDataPath.isEmpty() ? QString(QDir::tempPath() + folderName) : m_pictureDataPath;
    if (QDir(path).exists())
        QDir().rmpath(path);
    m_pictureDataPath.clear();
}

QString WebcamUtil::CreateSavePath(const QString &base)
{
    const QDir folder(base + folderName + "/" + CurrentDateQString());
    const QString path = folder.absolutePath();
    return folder.exists() || folder.mkpath(path) ? path : QString();
}

QString WebcamUtil::CurrentTimeQString()
{
    return millisecondsStamp();
}

QString WebcamUtil::CreatePhotofilename()
{
    return "photo" + CurrentTimeQString() + ".png";
}

QString WebcamUtil::CreateTempPhotofilename()
{
    return "photo" + CurrentTimeQString() + "tmp" + ".png";
}

QString WebcamUtil::CreateMoviefilename()
{
    return getTemporaryPath() + "/" + "movie" + CurrentSecondsQString() + ".mov";
}

QString WebcamUtil::CreateTempMoviefilename()
{
    return getTemporaryPath() + "/" + "movie" + CurrentSecondsQString() + "tmp" + "photo";
}

void WebcamUtil::deletetmpfile(const QString &path)
{
    QFile::remove(path);
}
