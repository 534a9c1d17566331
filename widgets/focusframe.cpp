#include "widgets/focusframe.h"

#include <QPainter>

namespace
{

constexpr int brightWidth = 5;
constexpr int darkWidth = 2;
constexpr QRgb bright = 0xffffd400;
constexpr QRgb dark = 0xff000000;

void frame(QPainter &painter, const QRectF &outer, qreal width, QRgb colour)
{
    painter.setPen(QPen(QColor(colour), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    const qreal half = width / 2;
    painter.drawRect(outer.adjusted(half, half, -half, -half));
}

} // namespace

bool isByKeyboard(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

void paintFocusFrame(QPainter &painter, const QRect &area)
{
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setRenderHint(QPainter::Antialiasing, false);
    const QRectF outer(area);
    frame(painter, outer, brightWidth, bright);
    frame(painter, outer.adjusted(brightWidth, brightWidth, -brightWidth, -brightWidth), darkWidth, dark);
    painter.restore();
}
