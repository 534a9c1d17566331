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
    // The name no wider than the picture, so that no frame lies over it.
    const int margin = qMax(0, (option.rect.width() - option.decorationSize.width()) / 2);
    unframed.rect.adjust(margin, 0, -margin, 0);
    unframed.direction = Qt::LeftToRight; // a file's name reads so in every language
    QStyledItemDelegate::paint(painter, unframed, index);
    const bool byKeyboard = option.state & QStyle::State_KeyboardFocusChange;
    const bool isFocused = byKeyboard && (option.state & QStyle::State_HasFocus);
    const int inset = isFocused ? focusFrameWidth : 0; // it may have both
    if (option.state & QStyle::State_Selected)
        paintFrame(*painter, option.rect.adjusted(inset, inset, -inset, -inset), chosenWidth, chosenColour);
    if (isFocused)
        paintFocusFrame(*painter, option.rect);
}
