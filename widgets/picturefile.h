#pragma once

#include <QImage>
#include <QSize>
#include <QString>

// Reading pictures that may be anything: any thread, and never more memory than a photo of 64 megapixels.

// The picture in a file, as it is painted without converting it: Format_RGB32, or premultiplied ARGB32 where
// it is not opaque. Null when there is none that can be shown.
QImage readPicture(const QString &path);

// A picture scaled into the size with its aspect ratio kept; null where it is. Needs the application, which
// reading does not.
QImage thumbnailOf(const QImage &picture, const QSize &size);

// What stands for a picture that is not there, scaled likewise.
QImage placeholderThumbnail(const QSize &size);
