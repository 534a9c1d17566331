#include "util/desktop/soundplayer.h"

#include <QFile>

#include <cstdio>

bool canLaunch(const QString &name)
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

QString findSoundPlayer()
{
    for (const char *player : {"play", "aplay"}) {
        if (canLaunch(QString::fromLatin1(player)))
            return QString::fromLatin1(player);
    }
    return QString();
}
