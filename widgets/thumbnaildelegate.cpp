#include "widgets/thumbnaildelegate.h"

#include "util/desktop/focusframe.h"

namespace
{
constexpr int chosenWidth = 4;
constexpr QRgb chosenColour = 0xff3f8df0;
} // namespace

void ThumbnailDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    QStyleOptionViewItem unframed = option;
    unframed.state.setFlag(QStyle::State_HasFocus, false);
    QStyledItemDelegate::paint(painter, unframed, index);
    const bool byKeyboard = option.state & QStyle::State_KeyboardFocusChange;
    const bool isFocused = byKeyboard && (option.state & QStyle::State_HasFocus);
    const int inset = isFocused ? focusFrameWidth : 0; // it may have both
    if (option.state & QStyle::State_Selected)
        paintFrame(*painter, option.rect.adjusted(inset, inset, -inset, -inset), chosenWidth, chosenColour);
    if (isFocused)
        paintFocusFrame(*painter, option.rect);
}
