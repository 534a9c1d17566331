#include "dialog/foldercopy.h"

#include "util/files/capturenames.h"
#include "util/files/filemove.h"
#include "util/files/freespace.h"
#include "util/files/wholefile.h"
#include "util/webcamutil.h"

#include <QFile>
#include <QFileInfo>
#include <QVector>

FolderCopy::FolderCopy(Kind kind, const QString &source, const QString &target, QObject *parent)
    : QThread(parent), m_kind(kind), m_source(source), m_target(target)
{
}

FolderCopy::~FolderCopy()
{
    requestInterruption();
    wait();
}

void FolderCopy::run()
{
    if (m_target.isEmpty())
        return;
    WholeFile::removeLeftOvers(m_target);
    // Looked at again at the end: a stick may have been pulled out.
    m_isComplete = isReadable() && copyAll() && isReadable();
}

bool FolderCopy::isReadable() const
{
    const QFileInfo folder(m_source);
    return folder.isDir() && folder.isReadable() && folder.isExecutable();
}

// What belongs together.
QVector<QStringList> FolderCopy::units() const
{
    QVector<QStringList> units;
    if (m_kind == Kind::Movies) {
        const QStringList pairs = WebcamUtil::getLoadMovieFile(m_source);
        for (int i = 0; i + 1 < pairs.size(); i += 2)
            units.append(pairs.mid(i, 2));
    } else {
        for (const QString &photo : WebcamUtil::getFileListFromDir(m_source, {photoFilter()}))
            units.append({photo});
    }
    return units;
}

// One that fails does not keep the others from being copied; a full disk does.
bool FolderCopy::copyAll() const
{
    bool isComplete = true;
    for (const QStringList &unit : units()) {
        const QStringList names = missing(unit);
        if (isInterruptionRequested() || !hasRoomFor(names))
            return false;
        isComplete = copyTogether(names) && isComplete;
    }
    return isComplete;
}

// What is to be copied of a unit: nothing when a part of it has vanished since the folder was listed.
QStringList FolderCopy::missing(const QStringList &unit) const
{
    QStringList names;
    for (const QString &name : unit) {
        if (QFile::exists(m_target + "/" + name))
            continue;
        if (!QFile::exists(m_source + "/" + name))
            return {};
        names.append(name);
    }
    return names;
}

bool FolderCopy::copyTogether(const QStringList &names) const
{
    QStringList placed;
    for (const QString &name : names) {
        const QString target = m_target + "/" + name;
        if (copyFileWhole(m_source + "/" + name, target, [this] { return isInterruptionRequested(); })) {
            placed.append(target);
            continue;
        }
        for (const QString &path : qAsConst(placed))
            QFile::remove(path);
        return false;
    }
    return true;
}

// As much as a capture needs must stay free.
bool FolderCopy::hasRoomFor(const QStringList &names) const
{
    if (names.isEmpty())
        return true;
    qint64 left = freeBytes(m_target).value_or(0);
    for (const QString &name : names)
        left -= QFileInfo(m_source + "/" + name).size();
    return enoughFreeSpace(left);
}
