#include "util/files/filelog.h"

#include <QLoggingCategory>

#include <cerrno>

Q_LOGGING_CATEGORY(files, "orvane.files")

void noteFileFault(const char *operation, const QString &path)
{
    const int error = errno;
    qCWarning(files, "%s: %s: %s", operation, qUtf8Printable(path), qUtf8Printable(qt_error_string(error)));
}

void noteUnexplainedFault(const char *operation, const QString &path)
{
    qCWarning(files, "%s: %s: not possible", operation, qUtf8Printable(path));
}

void noteSilentDisk(const char *operation, const QString &path)
{
    qCWarning(files, "%s: no answer from the disk of %s", operation, qUtf8Printable(path));
}

void noteFullDisk(const char *operation, const QString &folder)
{
    qCWarning(files, "%s: too little room on the disk of %s", operation, qUtf8Printable(folder));
}
