#include "widgets/buttoncaption.h"

#include <QPainter>
#include <QRegularExpression>
#include <QStyle>

namespace
{

// On the grey plate still to be read, but no more taken for something to press.
const QColor disabledColour(0x9a, 0x9a, 0x9e);

QString straightened(QString text)
{
    static const QRegularExpression firstBlanks("^ *");
    static const QRegularExpression blanksOfLine("\n *");
    const QString margin = firstBlanks.match(text).captured();
    return text.replace(blanksOfLine, '\n' + margin);
}

} // namespace

ButtonCaption::ButtonCaption(QWidget *parent) : QLabel(parent)
{
    setWordWrap(true);
    // Over the bitmap it is the window's text colour that can be read, not that of a common button.
    setForegroundRole(QPalette::WindowText);
    QPalette colours = palette();
    colours.setColor(QPalette::Disabled, QPalette::WindowText, disabledColour);
    setPalette(colours);
}

void ButtonCaption::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const int flags = QStyle::visualAlignment(layoutDirection(), alignment()) | Qt::TextWordWrap;
    style()->drawItemText(&painter, contentsRect(), flags, palette(), isEnabled(), straightened(text()),
                          foregroundRole());
}
