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
    if (option.state & QStyle::State_Selected) {
        const int inset = focusFrameWidth; // it may have both
        paintFrame(*painter, option.rect.adjusted(inset, inset, -inset, -inset), chosenWidth, chosenColour);
    }
    const bool byKeyboard = option.state & QStyle::State_KeyboardFocusChange;
    if (byKeyboard && (option.state & QStyle::State_HasFocus))
        paintFocusFrame(*painter, option.rect);
}
