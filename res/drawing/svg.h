#pragma once

#include <QImage>
#include <QString>

// Draws the drawing into a transparent square picture of the given side, in pixels. The picture is null when
// the file is not a drawing.
QImage drawSvg(const QString &file, int side);
