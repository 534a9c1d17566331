#include "util/files/folders.h"

#include "util/files/filelog.h"
#include "util/files/stamps.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

static const QString folderName = QStringLiteral("/VeltrixCamera");

// The temporary folder belongs to everybody: whoever takes the name first, or lays a link there, would see
// the captures or choose where they go. So only a real folder of this user will do, and nobody else may enter
// it.
bool keepPrivate(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status = {};
    if (lstat(name, &status) != 0)
        return false;
    if (S_ISDIR(status.st_mode) && status.st_uid == geteuid())
        return (status.st_mode & ACCESSPERMS) == S_IRWXU ||
               fchmodat(AT_FDCWD, name, S_IRWXU, AT_SYMLINK_NOFOLLOW) == 0;
    errno = EPERM;
    return false;
}

bool makePrivateFolder(const QString &path)
{
    const bool isThere = mkdir(QFile::encodeName(path), S_IRWXU) == 0 || errno == EEXIST;
    const bool isPrivate = isThere && keepPrivate(path);
    if (!isPrivate)
        noteFileFault("make folder", path);
    return isPrivate;
}

QString workingFolder()
{
    const QString temporary = QDir::tempPath(); // empty when it does not exist
    if (temporary.isEmpty())
        return QString();
    return QDir(temporary + folderName + "_" + QString::number(geteuid())).absolutePath();
}

QString makeWorkingFolder()
{
    QString path = workingFolder();
    if (path.isEmpty())
        noteUnexplainedFault("make folder", qEnvironmentVariable("TMPDIR"));
    return !path.isEmpty() && makePrivateFolder(path) ? path : QString();
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

// Where several users save into one folder, each can add to what another has begun there, but take nothing
// away. A folder that does not hand its group down has it handed down here.
static void shareLike(const QString &folder, const QString &path)
{
    struct stat shared = {};
    struct stat made = {};
    if (stat(QFile::encodeName(folder), &shared) != 0 || stat(QFile::encodeName(path), &made) != 0)
        return;
    const mode_t others = shared.st_mode & (S_IRWXG | S_IRWXO);
    const bool isGroups = (others & S_IWGRP) && !(others & S_IWOTH) && made.st_gid != shared.st_gid;
    if (isGroups && chown(QFile::encodeName(path), uid_t(-1), shared.st_gid) != 0)
        noteFileFault("share folder", path);
    const bool isKeptFromOthers = others & ~made.st_mode & (S_IWGRP | S_IWOTH);
    if ((isGroups || isKeptFromOthers) &&
        chmod(QFile::encodeName(path), made.st_mode | others | S_ISVTX) != 0)
        noteFileFault("share folder", path);
}

QString makeSaveFolder(const QString &base)
{
    QString path = base;
    for (const QString &name : {folderName, QString("/" + CurrentDateQString())}) {
        const bool isNew = !QDir(path + name).exists();
        const QString made = madeFolder(QDir(path + name));
        if (isNew && !made.isNull())
            shareLike(path, made);
        path = made;
        if (path.isNull())
            break;
    }
    return path;
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
