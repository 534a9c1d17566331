#pragma once

#include <QString>

// "mm:ss"; from the hundredth minute on the minutes have more digits.
inline QString minutesAndSeconds(qint64 seconds)
{
    const QLatin1Char zero('0');
    return QString("%1:%2").arg(seconds / 60, 2, 10, zero).arg(seconds % 60, 2, 10, zero);
}
