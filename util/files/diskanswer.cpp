#include "util/files/diskanswer.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QThread>

Q_LOGGING_CATEGORY(files, "orvane.files")

bool isGuiThread()
{
    return qApp && QThread::currentThread() == qApp->thread();
}

void noteSilentDisk(const char *operation, const QString &path)
{
    qCWarning(files, "%s: no answer from the disk of %s", operation, qUtf8Printable(path));
}
