#include "dialog/foldercopy.h"

#include "util/filemove.h"
#include "util/freespace.h"
#include "util/webcamutil.h"

#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
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
    // Looked at again at the end: a stick may have been pulled out.
    m_isComplete = !m_target.isEmpty() && isReadable() && copyAll() && isReadable();
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
        for (const QString &photo : WebcamUtil::getFileListFromDir(m_source, {"photo*"}))
            units.append({photo});
    }
    return units;
}

// One that fails does not keep the others from being copied.
bool FolderCopy::copyAll() const
{
    bool isComplete = true;
    for (const QStringList &unit : units()) {
        if (isInterruptionRequested())
            return false;
        isComplete = copyUnit(unit) && isComplete;
    }
    return isComplete;
}

bool FolderCopy::copyUnit(const QStringList &names) const
{
    QStringList placed;
    for (const QString &name : names) {
        if (copyFile(name, &placed))
            continue;
        for (const QString &path : qAsConst(placed))
            QFile::remove(path);
        return false;
    }
    return true;
}

bool FolderCopy::copyFile(const QString &name, QStringList *placed) const
{
    const QString from = m_source + "/" + name;
    const QString to = m_target + "/" + name;
    if (!QFile::exists(from) || QFile::exists(to))
        return true;
    if (!hasRoomFor(from) || !copyFileWhole(from, to, [this] { return isInterruptionRequested(); }))
        return false;
    placed->append(to);
    return true;
}

// As much as a capture needs must stay free.
bool FolderCopy::hasRoomFor(const QString &source) const
{
    const QStorageInfo disk(m_target);
    const qint64 left = disk.bytesAvailable() - QFileInfo(source).size();
    return left > 0 && enoughFreeSpace(1, fsblkcnt_t(left));
}
