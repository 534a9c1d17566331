#include "util/filemove.h"
#include "util/webcamutil.h"

#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <functional>
#include <memory>

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

// The captures' units, one after the other from the newest on, up to the first that fails. Nothing is removed
// before its name in the save folder is safe, for which one wait is enough for all.
bool moveAll(QStringList captures, const QString &working, const QString &save)
{
    QStringList placed;
    bool isComplete = true;
    while (isComplete && !captures.isEmpty()) {
        const QString newest = captures.takeLast();
        const QStringList unit = withPartner(newest, captures);
        isComplete = placeTogether(unit, working, save);
        if (isComplete)
            placed += unit;
    }
    return syncFolder(save) && removeAll(placed, working) && isComplete;
}

// Does the work on a thread of its own. The windows go on painting, and what the user presses meanwhile comes
// afterwards.
bool doAside(const std::function<bool()> &work)
{
    bool result = false;
    const std::unique_ptr<QThread> worker(QThread::create([&] { result = work(); }));
    QEventLoop loop;
    QObject::connect(worker.get(), &QThread::finished, &loop, &QEventLoop::quit);
    worker->start();
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    worker->wait(); // the loop ends with the application, too
    return result;
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
    const QStringList captures = getFileList({"photo*", "movie*"});
    return !captures.isEmpty() && doAside([&] { return moveAll(captures, working, save); });
}
