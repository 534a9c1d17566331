#include "widgets/picturewidget.h"

#include "util/desktop/accessiblerole.h"
#include "util/desktop/fonts.h"
#include "util/webcamutil.h"
#include "widgets/pictureloader.h"
#include "widgets/stretchbitmapbutton.h"

#include <QDir>
#include <QLabel>
#include <QPainter>

PictureWidget::PictureWidget(QWidget *parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), m_loader(new PictureLoader(this)), m_caption(new QLabel(tr("Photo"), this))
{
    setAccessibleRole(this, QAccessible::Graphic);
    setAccessibleName(m_caption->text());
    connect(m_loader, &PictureLoader::loaded, this, [this](int, const QImage &picture) { take(picture); });
    QPalette colours = palette();
    colours.setColor(QPalette::Window, Qt::black);
    colours.setColor(QPalette::WindowText, Qt::green);
    setPalette(colours);
    setAutoFillBackground(true);
    m_caption->setPalette(colours);
    m_caption->setAutoFillBackground(true);
    m_caption->setFont(captionFont());
}

void PictureWidget::Loadbmp(const QString &name, QString folder)
{
    if (!name.isEmpty())
        m_fileName = name;
    if (folder.isEmpty())
        folder = WebcamUtil::getTemporaryPath();
    m_loader->cancel();
    m_loader->request(0, QDir::toNativeSeparators(folder + "/" + m_fileName));
}

void PictureWidget::showPicture(const QString &name, const QImage &picture)
{
    m_loader->cancel();
    m_fileName = name;
    take(picture);
}

void PictureWidget::take(const QImage &picture)
{
    m_pixmap = QPixmap::fromImage(picture);
    update();
}

void PictureWidget::paintEvent(QPaintEvent *)
{
    if (m_pixmap.isNull())
        return;
    // In the screen's own pixels, of which a scaled desktop has more.
    const qreal ratio = devicePixelRatioF();
    const QSize room = size() * ratio;
    m_pixmap = m_pixmap.scaled(room, Qt::KeepAspectRatio, Qt::FastTransformation);
    const int x = int((room.width() - m_pixmap.width()) * 0.5);
    const int y = int((room.height() - m_pixmap.height()) * 0.5);
    QPainter painter(this);
    painter.scale(1 / ratio, 1 / ratio);
    painter.drawPixmap(x, y, m_pixmap);
}

void PictureWidget::createButtons()
{
    if (!m_zoom)
        m_zoom = new CStretchBitmapButton(tr("Zoom"), this);
    if (!m_back)
        m_back = new CStretchBitmapButton(tr("Back"), this);
    // The words above name bitmaps and stay English in every language; these are for people.
    m_zoom->setToolTip(tr("Zoom", "spoken"));
    m_back->setToolTip(tr("Back", "spoken"));
    m_zoom->setAccessibleName(numbered(m_zoom->toolTip()));
    m_back->setAccessibleName(m_back->toolTip());
}

QString PictureWidget::numbered(const QString &word) const
{
    return m_number.isEmpty() ? word : word + ' ' + m_number;
}

// Both buttons take the place of the zoom button, so that pressing twice at one place zooms and goes back.
void PictureWidget::placeAtBottomRight(QWidget *button)
{
    button->setGeometry(width() - m_zoom->width(), height() - m_zoom->height(), m_zoom->width(),
                        m_zoom->height());
}

bool PictureWidget::isZoomed() const
{
    return m_back && !m_back->isHidden();
}

void PictureWidget::resizeEvent(QResizeEvent *)
{
    if (!m_zoom)
        return;
    m_zoom->setIconFromObjectNameBitmap();
    m_back->setIconFromObjectNameBitmap();
    placeAtBottomRight(isZoomed() ? m_back : m_zoom);
}

void PictureWidget::ListMode()
{
    m_caption->show();
    createButtons();
    placeAtBottomRight(m_zoom);
    m_back->hide();
    m_zoom->show();
    connect(m_zoom, &QPushButton::clicked, this, &PictureWidget::OnZoom);
}

void PictureWidget::ZoomMode()
{
    m_caption->hide();
    setLabelText(QString());
    createButtons();
    placeAtBottomRight(m_back);
    m_back->show();
    m_zoom->hide();
    connect(m_back, &QPushButton::clicked, this, &PictureWidget::OnBack);
}

void PictureWidget::labelVisible(bool visible)
{
    m_caption->setVisible(visible);
}

void PictureWidget::setLabelText(const QString &text)
{
    m_caption->setText(text);
    m_caption->adjustSize();
    m_caption->show();
}

void PictureWidget::setNumber(int number)
{
    m_number = QString::number(number);
    setLabelText(m_number);
    setAccessibleName(numbered(tr("Photo")));
}

void PictureWidget::Release()
{
    m_loader->cancel();
    m_caption->hide();
    m_fileName.clear();
    take(QImage());
}

void PictureWidget::OnZoom()
{
    emit onZoom(this);
}

void PictureWidget::OnBack()
{
    emit onBack(this);
}
