#include "util/files/saving.h"

#include "util/files/capturenames.h"
#include "util/files/filelog.h"
#include "util/files/filemove.h"
#include "util/files/wholefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <deque>
#include <sys/stat.h>
#include <vector>

namespace
{

// A link is not a saved file: it may lead back to the working copy.
bool isSavedAlready(const QString &target)
{
    const QFileInfo info(target);
    return info.isFile() && !info.isSymLink();
}

// The newest capture, with its partner when it is a movie or a movie's preview; both leave the list, which is
// oldest first.
QStringList takeUnit(QStringList *captures)
{
    const QString newest = captures->takeLast();
    const QString partner = newest.contains(movieEnding) ? previewName(newest) : movieName(newest);
    return captures->removeOne(partner) ? QStringList{newest, partner} : QStringList{newest};
}

// Captures that are moved together or not at all. Copies are begun when a unit is made.
class Unit
{
public:
    Unit(const QStringList &names, const QString &working, const QString &save,
         const std::function<void()> &giveSign)
        : m_save(save)
    {
        for (const QString &name : names) {
            m_sources.append(working + "/" + name);
            const QString target = save + "/" + name;
            if (isSavedAlready(target)) // the working copy is only to be removed
                continue;
            m_targets.append(target);
            m_placements.emplace_back(m_sources.last(), target, giveSign);
        }
    }
    // False when not all could be placed, and then none is, or when a source could not be removed.
    bool move()
    {
        if (place())
            return removeAll(m_sources);
        removeAll(m_targets.mid(0, m_placed));
        return false;
    }

private:
    bool place()
    {
        for (FilePlacement &placement : m_placements) {
            if (!placement.finish())
                return false;
            ++m_placed;
        }
        if (syncFolder(m_save))
            return true;
        noteFileFault("save", m_save);
        return false;
    }
    static bool removeAll(const QStringList &paths)
    {
        return std::all_of(paths.begin(), paths.end(), [](const QString &path) {
            const bool isRemoved = ::remove(QFile::encodeName(path)) == 0;
            if (!isRemoved)
                noteFileFault("remove", path);
            return isRemoved;
        });
    }

    const QString m_save;
    QStringList m_sources;
    QStringList m_targets; // of the placements
    std::vector<FilePlacement> m_placements;
    int m_placed = 0;
};

// One unit after the other from the newest on, up to the first that fails.
bool moveAll(QStringList captures, const QString &working, const QString &save,
             const std::function<void()> &giveSign)
{
    // While the disk writes one, the next are copied: it is never without work.
    constexpr size_t unitsUnderWay = 6;
    std::deque<Unit> underWay;
    bool isComplete = true;
    while (isComplete) {
        while (!captures.isEmpty() && underWay.size() < unitsUnderWay)
            underWay.emplace_back(takeUnit(&captures), working, save, giveSign);
        if (underWay.empty())
            break;
        isComplete = underWay.front().move();
        underWay.pop_front();
        giveSign();
    }
    return isComplete;
}

// A file system without nameless files keeps what a killed save had begun, in the folder of its day.
void removeLeftOvers(const QString &save)
{
    const QDir days = QFileInfo(save).dir();
    for (const QString &day : days.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        WholeFile::removeLeftOvers(days.filePath(day));
}

dev_t diskOf(const QString &path)
{
    struct stat status = {};
    return stat(QFile::encodeName(path), &status) == 0 ? status.st_dev : 0;
}

// The save folder may be new, and those that it is in; what its disk is mounted on is not.
bool areNamesOnDisk(const QString &save)
{
    const dev_t disk = diskOf(save);
    for (QDir folder(save); folder.cdUp() && diskOf(folder.path()) == disk;) {
        if (!syncFolder(folder.path())) {
            noteFileFault("save", folder.path());
            return false;
        }
    }
    return true;
}

} // namespace

bool moveCaptures(const QStringList &captures, const QString &working, const QString &save,
                  const std::function<void()> &giveSign)
{
    removeLeftOvers(save);
    return areNamesOnDisk(save) && moveAll(captures, working, save, giveSign);
}
