#include "util/files/folders.h"

#include "util/files/filelog.h"
#include "util/files/stamps.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

static const QString folderName = QStringLiteral("/VeltrixCamera");

// The temporary folder belongs to everybody: whoever takes the name first, or lays a link there, would see
// the captures or choose where they go. So only a real folder of this user will do.
bool isOwnFolder(const QString &path)
{
    struct stat status = {};
    return lstat(QFile::encodeName(path), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == geteuid();
}

QString makeWorkingFolder()
{
    const QString temporary = QDir::tempPath(); // empty when it does not exist
    if (temporary.isEmpty())
        return QString();
    QString path = QDir(temporary + folderName + "_" + QString::number(geteuid())).absolutePath();
    if (mkdir(QFile::encodeName(path), S_IRWXU) != 0 && errno != EEXIST) {
        noteFileFault("make folder", path);
        return QString();
    }
    if (isOwnFolder(path))
        return path;
    errno = EPERM;
    noteFileFault("make folder", path);
    return QString();
}

void removeWorkingFolder(const QString &path)
{
    const QString folder = path.isEmpty() ? QString(QDir::tempPath() + folderName) : path;
    if (QDir(folder).exists())
        QDir().rmpath(folder);
}

static QString madeFolder(const QDir &folder)
{
    QString path = folder.absolutePath();
    if (folder.exists() || folder.mkpath(path))
        return path;
    noteFileFault("make folder", path);
    return QString();
}

QString makeSaveFolder(const QString &base)
{
    return madeFolder(QDir(base + folderName + "/" + CurrentDateQString()));
}

QString makeHomeFolder()
{
    return madeFolder(QDir(QDir::homePath()));
}

bool isWritableFolder(const QString &path)
{
    QDir folder(path);
    if (path.isEmpty() || !folder.exists() || folder.isRoot())
        return false;
    folder.setPath(folder.absolutePath());
    const QString name = folder.dirName();
    folder.cdUp();
    const QDir::Filters writable =
        QDir::Dirs | QDir::Writable | QDir::NoSymLinks | QDir::Hidden | QDir::NoDotAndDotDot;
    return folder.entryList(writable, QDir::Unsorted).contains(name);
}
