#pragma once

#include <QImage>
#include <QString>

// Writes the picture; the format follows from the file name. Ends the program with a message on stderr, so
// that the build stops there, when there is no picture or it cannot be written.
inline void savePicture(const QImage &picture, const QString &file)
{
    if (picture.isNull())
        qFatal("%s: not a drawing", qPrintable(file));
    if (!picture.save(file))
        qFatal("%s: cannot be written", qPrintable(file));
}
