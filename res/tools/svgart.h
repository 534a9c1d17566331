#pragma once

#include <QImage>
#include <QString>

// Draws the drawing into a transparent square picture of the given side, in pixels. Ends the program with
// a message on stderr when the file is not a drawing, so that the build stops there.
QImage drawSvg(const QString &file, int side);

// Writes the picture; the format follows from the file name. Ends the program when it cannot be written.
void savePicture(const QImage &picture, const QString &file);
