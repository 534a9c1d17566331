#include "util/freespace.h"
#include "util/webcamutil.h"

#include <QDir>
#include <QFile>

#include <cstdio>
#include <sys/statvfs.h>

bool WebcamUtil::chkdiskFreeSpace()
{
    struct statvfs status = {};
    if (statvfs(QFile::encodeName(existingTemporaryPath()), &status) != 0)
        return false;
    return enoughFreeSpace(status.f_bsize, status.f_bavail);
}

bool WebcamUtil::hasWriteAccess(const QString &path)
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

bool WebcamUtil::canlaunch(const QString &name)
{
    FILE *pipe = popen(QString("which " + name).toLocal8Bit().constData(), "r");
    if (!pipe)
        return false;
    char line[32] = {};
    const bool answered = fgets(line, sizeof line, pipe) != nullptr;
    QString path = QString::fromLocal8Bit(line);
    path.chop(1);
    pclose(pipe);
    return answered && QFile::exists(path);
}

QString WebcamUtil::playsound()
{
    for (const char *player : {"play", "aplay"}) {
        if (canlaunch(QString::fromLatin1(player)))
            return QString::fromLatin1(player);
    }
    return QString();
}
