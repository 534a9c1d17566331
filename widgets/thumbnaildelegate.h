#pragma once

#include <QStyledItemDelegate>

// Paints the strip's items: what is chosen has a frame, and while the strip is used by keyboard its current
// item has the focus frame.
class ThumbnailDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};
