#pragma once

#include <QImage>
#include <QString>

// The camera's photos on the disk: PNG files of 8-bit RGB, not interlaced, in one run of data, each pixel as
// its difference from the one to its left. Both operations may be used from any thread.

// Writes a picture of Format_RGB888, fast rather than small: a teacher waits for it. 0 when the file stands
// whole under its name, else the error number of what failed, such as EEXIST for a name that is taken,
// ENOSPC, or EINVAL for no picture of that format; nothing is left then.
int writePhoto(const QString &path, const QImage &picture);

// Reads such a file in less than half the time that a decoder for every kind of PNG needs, as Format_RGB32,
// which is what is painted fastest. A null image for any other file and for pictures of more than pixelBudget
// pixels.
QImage decodePhoto(const QString &path, qint64 pixelBudget);
