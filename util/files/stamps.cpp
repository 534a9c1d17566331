#include "util/files/stamps.h"

#include <QLocale>

// The C locale, named outright: the user's own may write other digits.
static QString stamp(const QDateTime &now, const char *format)
{
    return QLocale::c().toString(now, QLatin1String(format));
}

QString CurrentDateQString(const QDateTime &now)
{
    return stamp(now, "yyyyMMdd");
}

QString CurrentSecondsQString(const QDateTime &now)
{
    return stamp(now, "yyyyMMddHHmmss");
}

QString millisecondsStamp(const QDateTime &now)
{
    return stamp(now, "yyyyMMddHHmmsszzz");
}
