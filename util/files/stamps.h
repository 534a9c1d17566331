#pragma once

#include <QDateTime>
#include <QString>

// Time stamps in file and folder names: decimal fields of fixed width, filled with zeros, no separators,
// ASCII digits in every language.

// YYYYMMDD
QString CurrentDateQString(const QDateTime &now = QDateTime::currentDateTime());
// YYYYMMDDhhmmss
QString CurrentSecondsQString(const QDateTime &now = QDateTime::currentDateTime());
// YYYYMMDDhhmmsszzz
QString millisecondsStamp(const QDateTime &now = QDateTime::currentDateTime());
