#include "util/desktop/look.h"

#include "res/drawing/plate.h"
#include "util/desktop/focusframe.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOptionButton>

namespace
{

const char *const plainStyle = "fusion";

// In pixels. What has no room of its own given to it is as high as a finger is wide.
constexpr int touchHeight = 40;
constexpr int indicatorSide = 20;
constexpr int scrollBarWidth = 22;
constexpr qreal edgeWidth = 2;
constexpr qreal cornerRadius = 3;
constexpr qreal plateScale = 0.6; // of the large buttons' edges

class ButtonLook : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        switch (metric) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight:
            return indicatorSide;
        case PM_ScrollBarExtent:
            return scrollBarWidth;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override
    {
        const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
        switch (type) {
        case CT_PushButton:
        case CT_ToolButton:
        case CT_ComboBox:
        case CT_LineEdit:
        case CT_ItemViewItem:
        case CT_MenuItem:
            return size.expandedTo(QSize(0, touchHeight));
        default:
            return size;
        }
    }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *answer) const override
    {
        // Words alone, as in all other dialogs.
        return hint == SH_DialogButtonBox_ButtonsHaveIcons
                   ? 0
                   : QProxyStyle::styleHint(hint, option, widget, answer);
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (element == PE_FrameFocusRect) {
            paintSlimFocusFrame(*painter, option->rect);
            return;
        }
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton)
            drawEdge(*option, *painter, element == PE_IndicatorRadioButton);
        else if (element == PE_PanelLineEdit && (option->state & State_HasFocus))
            paintSlimFocusFrame(*painter, option->rect);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override
    {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        if (control == CC_ComboBox && (option->state & State_HasFocus))
            paintSlimFocusFrame(*painter, option->rect);
    }

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        if (element == CE_PushButtonBevel)
            drawBevel(*option, *painter);
        else
            QProxyStyle::drawControl(element, option, painter, widget);
    }

private:
    // What can be ticked stands out from the dialog as the plates do.
    static void drawEdge(const QStyleOption &option, QPainter &painter, bool isRound)
    {
        const PlateState state = option.state & State_Enabled ? PlateState::Up : PlateState::Disabled;
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(plateColours(state).edge, edgeWidth));
        const QRectF edge = QRectF(option.rect).adjusted(1, 1, -1, -1);
        const qreal radius = isRound ? edge.width() / 2 : cornerRadius;
        painter.drawRoundedRect(edge, radius, radius);
        painter.restore();
    }

    static void drawBevel(const QStyleOption &option, QPainter &painter)
    {
        PlateState state = PlateState::Up;
        if (!(option.state & State_Enabled))
            state = PlateState::Disabled;
        else if (option.state & State_Sunken)
            state = PlateState::Down;
        painter.save();
        drawPlate(painter, option.rect, state, plateScale);
        painter.restore();
    }
};

QPalette coloursOfButtons()
{
    const PlateColours up = plateColours(PlateState::Up);
    const PlateColours down = plateColours(PlateState::Down);
    const QColor window(0x12, 0x19, 0x2b);
    const QColor disabled(0x8a, 0x8f, 0x9c);
    QPalette colours(up.top, window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
                            QPalette::HighlightedText, QPalette::BrightText})
        colours.setColor(role, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colours.setColor(QPalette::Disabled, role, disabled);
    colours.setColor(QPalette::Base, up.bottom);
    colours.setColor(QPalette::AlternateBase, up.bottom.lighter(115));
    colours.setColor(QPalette::ToolTipBase, up.bottom);
    colours.setColor(QPalette::Highlight, down.top);
    colours.setColor(QPalette::PlaceholderText, disabled);
    return colours;
}

} // namespace

void applyLook()
{
    if (QApplication::style()->objectName() != plainStyle)
        return;
    QApplication::setStyle(new ButtonLook(QStyleFactory::create(plainStyle)));
    QApplication::setPalette(coloursOfButtons());
}
