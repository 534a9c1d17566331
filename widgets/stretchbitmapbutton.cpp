#include "widgets/stretchbitmapbutton.h"

#include "res/drawing/button.h"
#include "util/desktop/focusframe.h"
#include "widgets/buttoncaption.h"

#include <QFocusEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QScreen>

#include <utility>

namespace
{

// The widest row has five buttons beside the one for leaving.
constexpr int buttonsAcrossScreen = 6;

// Captions are made for a screen of this width; on narrower ones they shrink with it.
constexpr int fullCaptionWidth = 1024;
constexpr int fullCaptionPoints = 11;

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

QFont captionTextFont()
{
    return QFont("Arial", captionPointSize(), QFont::Black, false);
}

// Told the format, Qt finds it out without loading the readers of all others.
constexpr char bitmapFormat[] = "BMP";

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

// Only the size is needed now: most of the sixty bitmaps are not seen for a while, or never.
void CStretchBitmapButton::setIconFromObjectNameBitmap()
{
    forgetPixmaps();
    const QSize whole = QImageReader(resource("_up.bmp"), bitmapFormat).size();
    const int width = qMin(availableScreenWidth() / buttonsAcrossScreen, whole.width());
    const QSize size =
        whole.isValid() ? whole.scaled(width, whole.height(), Qt::KeepAspectRatio) : QSize(0, 0);
    setBaseSize(size);
    resize(size);
    if (m_caption)
        m_caption->setFont(captionTextFont());
    update();
}

void CStretchBitmapButton::forgetPixmaps()
{
    m_up = m_down = m_disabled = QPixmap();
    m_pixels = QSize();
}

QString CStretchBitmapButton::resource(const char *ending) const
{
    return ":res/" + m_name + ending;
}

void CStretchBitmapButton::createCaption()
{
    m_caption = new ButtonCaption(this);
    m_caption->setFont(captionTextFont());
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

const QPixmap &CStretchBitmapButton::pixmapForState()
{
    // Another size, or a screen with other pixels.
    const QSize pixels = size() * devicePixelRatioF();
    if (m_pixels != pixels)
        forgetPixmaps();
    m_pixels = pixels;
    if (!isEnabled())
        return loaded(&m_disabled, "_ds.bmp", PlateState::Disabled);
    return isDown() ? loaded(&m_down, "_dw.bmp", PlateState::Down) : loaded(&m_up, "_up.bmp", PlateState::Up);
}

// A bitmap of another size is drawn anew; one without a drawing is scaled.
const QPixmap &CStretchBitmapButton::loaded(QPixmap *pixmap, const char *ending, PlateState state)
{
    if (!pixmap->isNull() || !pixmap->load(resource(ending), bitmapFormat) || pixmap->size() == m_pixels)
        return *pixmap;
    const qreal scale = qreal(m_pixels.width()) / pixmap->width();
    const QImage drawn = drawButton(resource(".svg"), pixmap->size(), state, scale);
    *pixmap = drawn.isNull() ? pixmap->scaled(m_pixels, Qt::KeepAspectRatio, Qt::FastTransformation)
                             : QPixmap::fromImage(drawn);
    return *pixmap;
}

void CStretchBitmapButton::paintEvent(QPaintEvent *)
{
    if (!isVisible())
        return;
    QPainter painter(this);
    const QPixmap &pixmap = pixmapForState();
    painter.drawPixmap(QRectF(0, 0, width(), height()), pixmap, QRectF(pixmap.rect()));
    if (m_focusedByKeyboard)
        paintFocusFrame(painter, rect());
}

// While another window had the focus, another button may have been given it; that one alone is told.
bool CStretchBitmapButton::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate && window()->focusWidget() != this &&
        std::exchange(m_focusedByKeyboard, false))
        update();
    return QPushButton::event(event);
}

void CStretchBitmapButton::focusInEvent(QFocusEvent *event)
{
    if (isByKeyboard(event->reason()))
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
