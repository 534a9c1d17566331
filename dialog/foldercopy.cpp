#include "dialog/foldercopy.h"

#include "util/files/alivewait.h"
#include "util/files/capturenames.h"
#include "util/files/filelog.h"
#include "util/files/filemove.h"
#include "util/files/freespace.h"
#include "util/files/wholefile.h"
#include "util/webcamutil.h"

#include <QFile>
#include <QFileInfo>
#include <QVector>

#include <atomic>
#include <chrono>
#include <unistd.h>

namespace
{

using namespace std::chrono_literals;

constexpr auto lookPeriod = 5ms;

// A disk that lets the copying end takes a fraction of it.
constexpr auto stopPatience = 2s;

} // namespace

// All that the copying itself uses.
struct FolderCopy::Work {
    bool run() const;
    bool isReadable() const;
    QVector<QStringList> units() const;
    bool copyAll() const;
    QStringList missing(const QStringList &unit) const;
    bool hasRoomFor(const QStringList &names) const;
    bool copyTogether(const QStringList &names) const;

    const Kind kind;
    const QString source;
    const QString target;
    std::atomic<bool> isStopped{false};
};

FolderCopy::FolderCopy(Kind kind, const QString &source, const QString &target, QObject *parent)
    : QObject(parent), m_work(new Work{kind, source, target})
{
    m_isComplete = startAside([work = m_work] { return work->run(); });
    connect(&m_look, &QTimer::timeout, this, &FolderCopy::look);
    m_look.start(lookPeriod);
}

FolderCopy::~FolderCopy()
{
    m_work->isStopped = true;
    if (m_isComplete.valid() && !m_stopLimit.hasExpired())
        m_isComplete.wait_for(stopPatience);
}

void FolderCopy::stop()
{
    m_work->isStopped = true;
    m_stopLimit.setRemainingTime(stopPatience);
}

void FolderCopy::look()
{
    if (!isReady(m_isComplete) && !m_stopLimit.hasExpired())
        return;
    m_look.stop();
    const bool isOver = isReady(m_isComplete);
    emit finished(isOver && m_isComplete.get());
}

bool FolderCopy::Work::run() const
{
    if (target.isEmpty())
        return false;
    WholeFile::removeLeftOvers(target);
    // Looked at again at the end: a stick may have been pulled out.
    return isReadable() && copyAll() && isReadable();
}

bool FolderCopy::Work::isReadable() const
{
    if (access(QFile::encodeName(source + "/."), R_OK | X_OK) == 0)
        return true;
    noteFileFault("load", source);
    return false;
}

// What belongs together.
QVector<QStringList> FolderCopy::Work::units() const
{
    QVector<QStringList> units;
    if (kind == Kind::Movies) {
        const QStringList pairs = WebcamUtil::getLoadMovieFile(source);
        for (int i = 0; i + 1 < pairs.size(); i += 2)
            units.append(pairs.mid(i, 2));
    } else {
        for (const QString &photo : WebcamUtil::getFileListFromDir(source, {photoFilter()}))
            units.append({photo});
    }
    return units;
}

// One that fails does not keep the others from being copied; a full disk does.
bool FolderCopy::Work::copyAll() const
{
    bool isComplete = true;
    for (const QStringList &unit : units()) {
        const QStringList names = missing(unit);
        if (isStopped.load())
            return false;
        if (!hasRoomFor(names)) {
            noteFullDisk("load", target);
            return false;
        }
        isComplete = copyTogether(names) && isComplete;
    }
    return isComplete;
}

// What is to be copied of a unit: nothing when a part of it has vanished since the folder was listed.
QStringList FolderCopy::Work::missing(const QStringList &unit) const
{
    QStringList names;
    for (const QString &name : unit) {
        if (QFile::exists(target + "/" + name))
            continue;
        if (!QFile::exists(source + "/" + name))
            return {};
        names.append(name);
    }
    return names;
}

bool FolderCopy::Work::copyTogether(const QStringList &names) const
{
    QStringList placed;
    for (const QString &name : names) {
        const QString copy = target + "/" + name;
        if (copyFileWhole(source + "/" + name, copy, [this] { return isStopped.load(); })) {
            placed.append(copy);
            continue;
        }
        for (const QString &path : qAsConst(placed))
            QFile::remove(path);
        return false;
    }
    return true;
}

// As much as a capture needs must stay free.
bool FolderCopy::Work::hasRoomFor(const QStringList &names) const
{
    if (names.isEmpty())
        return true;
    qint64 left = freeBytes(target).value_or(0);
    for (const QString &name : names)
        left -= QFileInfo(source + "/" + name).size();
    return enoughFreeSpace(left);
}
