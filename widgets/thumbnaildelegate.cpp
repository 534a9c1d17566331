#include "widgets/thumbnaildelegate.h"

#include "widgets/focusframe.h"

void ThumbnailDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    QStyleOptionViewItem unframed = option;
    unframed.state.setFlag(QStyle::State_HasFocus, false);
    QStyledItemDelegate::paint(painter, unframed, index);
    const bool byKeyboard = option.state & QStyle::State_KeyboardFocusChange;
    if (byKeyboard && (option.state & QStyle::State_HasFocus))
        paintFocusFrame(*painter, option.rect);
}
