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

QImage scaledInto(const QSize &size, const QImage &image)
{
    return image.isNull() ? image : image.scaled(size, Qt::KeepAspectRatio, Qt::FastTransformation);
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

QImage readThumbnail(const QString &path, const QSize &size)
{
    return scaledInto(size, readPicture(path));
}

QImage placeholderThumbnail(const QSize &size)
{
    QImage placeholder(800, 600, QImage::Format_RGB32);
    placeholder.fill(Qt::lightGray);
    return scaledInto(size, placeholder);
}
