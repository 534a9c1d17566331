#include "widgets/stretchbitmapbutton.h"

#include <QFocusEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>

namespace
{

// The widest row has five buttons beside the one for leaving.
constexpr int buttonsAcrossScreen = 6;

// Captions are made for a screen of this width; on narrower ones they shrink with it.
constexpr int fullCaptionWidth = 1024;
constexpr int fullCaptionPoints = 11;

// Wide enough to be seen from some metres, narrow enough to leave the picture alone.
constexpr int focusFrameWidth = 4;
constexpr QRgb focusFrameColour = 0xffffd400;

int availableScreenWidth()
{
    return QGuiApplication::primaryScreen()->availableGeometry().width();
}

int captionPointSize()
{
    const int width = availableScreenWidth();
    if (width >= fullCaptionWidth)
        return fullCaptionPoints;
    return int(width * (1.0 / fullCaptionWidth) * fullCaptionPoints);
}

QPixmap scaledTo(const QSize &size, const QPixmap &pixmap)
{
    return pixmap.isNull() ? pixmap : pixmap.scaled(size, Qt::KeepAspectRatio, Qt::FastTransformation);
}

} // namespace

CStretchBitmapButton::CStretchBitmapButton(const QString &name, QWidget *parent)
    : QPushButton(name, parent), m_name(name)
{
    setCheckable(false);
    // The window is no QDialog, and there only automatic default buttons listen to the enter key.
    setAutoDefault(true);
    setIconFromObjectNameBitmap();
    createCaption();
    setVisible(false);
}

void CStretchBitmapButton::setIconFromObjectNameBitmap()
{
    // Told the format, Qt finds it out without loading the readers of all others.
    constexpr char format[] = "BMP";
    const QString base = ":res/" + m_name;
    m_up = QPixmap(base + "_up.bmp", format);
    m_down = QPixmap(base + "_dw.bmp", format);
    m_disabled = QPixmap(base + "_ds.bmp", format);

    const QSize box(qMin(availableScreenWidth() / buttonsAcrossScreen, m_up.width()), m_up.height());
    const QSize size = m_up.size().scaled(box, Qt::KeepAspectRatio);
    m_up = scaledTo(size, m_up);
    m_down = scaledTo(size, m_down);
    m_disabled = scaledTo(size, m_disabled);

    setBaseSize(size);
    resize(size);
    update();
}

void CStretchBitmapButton::createCaption()
{
    m_caption = new QLabel(this);
    m_caption->setFont(QFont("Arial", captionPointSize(), QFont::Black, false));
    m_caption->setWordWrap(true);
    // Over the bitmap it is the window's text colour that can be read, not that of a common button.
    m_caption->setForegroundRole(QPalette::WindowText);
    const Qt::LayoutDirection captionDirection = m_caption->layoutDirection();

    auto *picturePart = new QLabel;
    auto *layout = new QGridLayout(this);
    layout->setMargin(0);
    layout->addWidget(picturePart, 0, 0);
    layout->addWidget(m_caption, 0, 1);
    layout->setColumnStretch(0, 2);
    layout->setColumnStretch(1, 3);
    for (QLabel *label : {picturePart, m_caption})
        label->setAttribute(Qt::WA_TransparentForMouseEvents);

    // The bitmap is never mirrored, the caption reads as its language does.
    setLayoutDirection(Qt::LeftToRight);
    m_caption->setLayoutDirection(captionDirection);
}

void CStretchBitmapButton::setCaptionText(const QString &text)
{
    const bool rightToLeft = m_caption->layoutDirection() == Qt::RightToLeft;
    m_caption->setText(rightToLeft ? "  " + text : text);
    setAccessibleName(text.simplified());
}

const QPixmap &CStretchBitmapButton::pixmapForState() const
{
    if (!isEnabled())
        return m_disabled;
    return isDown() ? m_down : m_up;
}

void CStretchBitmapButton::paintEvent(QPaintEvent *)
{
    if (!isVisible())
        return;
    QPainter painter(this);
    const QPixmap &pixmap = pixmapForState();
    painter.drawPixmap(QRectF(0, 0, width(), height()), pixmap, QRectF(pixmap.rect()));
    if (m_focusedByKeyboard)
        paintFocusFrame(painter);
}

void CStretchBitmapButton::paintFocusFrame(QPainter &painter) const
{
    const int inset = focusFrameWidth / 2;
    painter.setPen(
        QPen(QColor(focusFrameColour), focusFrameWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(rect().adjusted(inset, inset, -inset, -inset));
}

// Who presses with mouse or pen sees what was pressed; only who moves by keyboard needs to see where he is.
void CStretchBitmapButton::focusInEvent(QFocusEvent *event)
{
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason)
        m_focusedByKeyboard = true;
    QPushButton::focusInEvent(event);
}

void CStretchBitmapButton::focusOutEvent(QFocusEvent *event)
{
    // A window that loses the focus as a whole gives it back to the same button.
    if (event->reason() != Qt::ActiveWindowFocusReason)
        m_focusedByKeyboard = false;
    QPushButton::focusOutEvent(event);
}
