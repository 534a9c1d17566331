#include "util/desktop/focusframe.h"

#include <QPainter>

namespace
{

constexpr int darkWidth = 2;
constexpr int brightWidth = focusFrameWidth - darkWidth;
constexpr int slimWidth = 3;
constexpr QRgb bright = 0xffffd400;
constexpr QRgb dark = 0xff000000;

} // namespace

bool isByKeyboard(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

void paintFrame(QPainter &painter, const QRectF &area, qreal width, QRgb rgb)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(rgb), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    const qreal half = width / 2;
    painter.drawRect(area.adjusted(half, half, -half, -half));
    painter.restore();
}

void paintFocusFrame(QPainter &painter, const QRectF &area)
{
    paintFrame(painter, area, brightWidth, bright);
    paintFrame(painter, area.adjusted(brightWidth, brightWidth, -brightWidth, -brightWidth), darkWidth, dark);
}

void paintSlimFocusFrame(QPainter &painter, const QRectF &area)
{
    paintFrame(painter, area, slimWidth, bright);
}
