#include "util/filemove.h"
#include "util/webcamutil.h"

#include <QFile>
#include <QFileInfo>

namespace
{

// A link is not a saved file: it may lead back to the working copy.
bool isSavedAlready(const QString &target)
{
    const QFileInfo info(target);
    return info.isFile() && !info.isSymLink();
}

// The other one of a movie and its preview picture; any name for a capture that has no partner.
QString partnerOf(const QString &name)
{
    if (name.contains(".mov"))
        return WebcamUtil::previewName(name);
    return QString(name).replace("tmp.png", ".mov");
}

// The name, followed by its partner when that is among the others, which then lose it.
QStringList withPartner(const QString &name, QStringList &others)
{
    const QString partner = partnerOf(name);
    return others.removeOne(partner) ? QStringList{name, partner} : QStringList{name};
}

// Puts every one of the names into the save folder or none of them. A name that is saved already counts as
// put.
bool placeTogether(const QStringList &names, const QString &working, const QString &save)
{
    QStringList placed;
    for (const QString &name : names) {
        const QString target = save + "/" + name;
        if (isSavedAlready(target))
            continue;
        if (!placeFileWhole(working + "/" + name, target)) {
            for (const QString &path : qAsConst(placed))
                QFile::remove(path);
            return false;
        }
        placed.append(target);
    }
    return true;
}

bool removeAll(const QStringList &names, const QString &folder)
{
    for (const QString &name : names) {
        if (!QFile::remove(folder + "/" + name))
            return false;
    }
    return true;
}

} // namespace

bool WebcamUtil::saveData(const QString &dir)
{
    const QString working = getTemporaryPath();
    if (working.isEmpty())
        return false;
    // Once: a save that runs past midnight stays in one folder.
    const QString save = CreateSavePath(dir);
    if (save.isEmpty())
        return false;
    QStringList captures = getFileList({"photo*", "movie*"});
    if (captures.isEmpty())
        return false;
    while (!captures.isEmpty()) {
        const QString newest = captures.takeLast();
        const QStringList unit = withPartner(newest, captures);
        if (!placeTogether(unit, working, save) || !removeAll(unit, working))
            return false;
    }
    return true;
}
