#include "res/drawing/svg.h"

#include <QPainter>
#include <QSvgRenderer>

QImage drawSvg(const QString &file, int side)
{
    QSvgRenderer drawing(file);
    if (!drawing.isValid())
        return {};
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter);
    return picture;
}
