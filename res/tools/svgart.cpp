#include "res/tools/svgart.h"

#include <QPainter>
#include <QSvgRenderer>

QImage drawSvg(const QString &file, int side)
{
    QSvgRenderer drawing(file);
    if (!drawing.isValid())
        qFatal("%s: not a drawing", qPrintable(file));
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter);
    return picture;
}

void savePicture(const QImage &picture, const QString &file)
{
    if (!picture.save(file))
        qFatal("%s: cannot be written", qPrintable(file));
}
