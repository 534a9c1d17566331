#include "widgets/picturefile.h"

#include "util/files/photofile.h"

#include <QFileInfo>
#include <QImageReader>

namespace
{

// Far more than any camera gives. A file of some kilobytes may claim a thousand megapixels.
constexpr qint64 pixelBudget = 64LL * 1000 * 1000;

QImage readWithPlugins(const QString &path)
{
    QImageReader reader(path);
    const QSize size = reader.size();
    if (!size.isValid() || qint64(size.width()) * size.height() > pixelBudget)
        return {};
    const QImage image = reader.read();
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                         : QImage::Format_RGB32);
}

} // namespace

QImage readPicture(const QString &path)
{
    // Opening a pipe would block.
    if (!QFileInfo(path).isFile())
        return {};
    const QImage photo = decodePhoto(path, pixelBudget);
    return photo.isNull() ? readWithPlugins(path) : photo;
}

QImage thumbnailOf(const QImage &picture, const QSize &size)
{
    return picture.isNull() ? picture : picture.scaled(size, Qt::KeepAspectRatio, Qt::FastTransformation);
}

QImage placeholderThumbnail(const QSize &size)
{
    QImage placeholder(800, 600, QImage::Format_RGB32);
    placeholder.fill(Qt::lightGray);
    return thumbnailOf(placeholder, size);
}
