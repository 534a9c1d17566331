#include "dialog/foldercopy.h"

#include "util/filemove.h"

#include <QFile>

FolderCopy::FolderCopy(const QStringList &names, const QString &source, const QString &target,
                       QObject *parent)
    : QThread(parent), m_names(names), m_source(source), m_target(target)
{
}

FolderCopy::~FolderCopy()
{
    requestInterruption();
    wait();
}

void FolderCopy::run()
{
    const auto isToStop = [this] { return isInterruptionRequested(); };
    bool isComplete = true;
    for (const QString &name : qAsConst(m_names)) {
        if (isToStop())
            return;
        const QString from = m_source + "/" + name;
        const QString to = m_target + "/" + name;
        if (QFile::exists(from) && !QFile::exists(to))
            isComplete = copyFileWhole(from, to, isToStop) && isComplete;
    }
    m_isComplete = isComplete;
}
