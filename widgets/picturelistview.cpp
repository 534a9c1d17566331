#include "widgets/picturelistview.h"

#include "util/desktop/focusframe.h"
#include "util/files/capturenames.h"
#include "util/webcamutil.h"
#include "widgets/picturefile.h"
#include "widgets/pictureloader.h"
#include "widgets/thumbnaildelegate.h"

#include <QFocusEvent>
#include <QRegularExpression>

#include <algorithm>

namespace
{

constexpr int itemSpacing = 10;
constexpr double iconAspectRatio = 1.3;

QString previewOfMovie(QString name)
{
    // A regular expression: its dot stands for any character.
    static const QRegularExpression anyMovieEnding{QString(movieEnding)};
    return name.replace(anyMovieEnding, previewEnding);
}

QString movieOfPreview(QString name)
{
    const int ending = name.indexOf(previewEnding);
    return ending < 0 ? name : name.replace(ending, previewEnding.size(), movieEnding);
}

// As it stands in the name, after a comma; nothing when no time stands there.
QString timeOfCapture(const QString &name)
{
    static const QRegularExpression stamp("\\d{8}(\\d\\d)(\\d\\d)(\\d\\d)");
    const QRegularExpressionMatch match = stamp.match(name);
    return match.hasMatch() ? ", " + match.capturedTexts().mid(1).join(':') : QString();
}

} // namespace

PictureListView::PictureListView(QWidget *parent) : SwipedList(parent), m_loader(new PictureLoader(this))
{
    setViewMode(QListView::IconMode);
    setSpacing(itemSpacing);
    QPalette colours = palette();
    colours.setColor(QPalette::Base, Qt::black);
    setPalette(colours);
    setBackgroundRole(QPalette::Base);
    setFlow(QListView::TopToBottom);
    setTextElideMode(Qt::ElideLeft); // the names of a day differ in their ends
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionMode(QAbstractItemView::MultiSelection);
    setItemDelegate(new ThumbnailDelegate(this));
    connect(this, &QListWidget::itemSelectionChanged, this, &PictureListView::selectedItem);
    connect(m_loader, &PictureLoader::loaded, this, &PictureListView::showThumbnail);
}

void PictureListView::setMovieMode(bool movies)
{
    setSelectionMode(movies ? QAbstractItemView::SingleSelection : QAbstractItemView::MultiSelection);
    m_movieMode = movies;
}

void PictureListView::setPictSize(const QSize &size)
{
    setIconSize(size);
}

void PictureListView::AddPicture(const QString &name)
{
    AddPicture(QStringList(name));
}

// Scrolled once: for each item all that stand there would be laid out anew.
void PictureListView::AddPicture(const QStringList &names)
{
    const int before = m_items.size();
    for (const QString &name : names)
        addItem(name);
    if (m_items.size() > before)
        scrollToItem(m_items.last());
}

void PictureListView::addItem(const QString &name)
{
    if (m_nameList.contains(name))
        return;
    ensureIconSize();
    QListWidgetItem *item = createItem(name);
    requestThumbnail(name, item);
    m_nameList << name;
    m_items << item;
}

void PictureListView::AddPictureWithSelect(const QString &name)
{
    AddPicture(name);
    m_selectionList << name;
}

void PictureListView::ensureIconSize()
{
    if (iconSize().isEmpty()) {
        const int iconHeight = height() / 3 * 2;
        setIconSize(QSize(int(iconAspectRatio * iconHeight), iconHeight));
    }
    if (m_placeholderSize != iconSize()) {
        m_placeholderSize = iconSize();
        m_placeholder = iconOf(placeholderThumbnail(m_placeholderSize * devicePixelRatioF()));
    }
}

QListWidgetItem *PictureListView::createItem(const QString &name)
{
    auto *item = new QListWidgetItem(this);
    item->setBackground(Qt::black);
    item->setForeground(Qt::white);
    item->setSizeHint(itemSize());
    item->setIcon(m_placeholder);
    item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    item->setText(m_movieMode ? movieOfPreview(name) : name);
    item->setData(Qt::AccessibleTextRole, spokenName(name));
    return item;
}

QSize PictureListView::itemSize() const
{
    return {height(), iconSize().width()};
}

void PictureListView::fitThumbnails()
{
    forgetRequests();
    setPictSize({});
    ensureIconSize();
    for (int row = 0; row < count(); ++row) {
        item(row)->setSizeHint(itemSize());
        requestThumbnail(m_nameList[row], item(row));
    }
}

// A name of thirty digits tells nobody anything.
QString PictureListView::spokenName(const QString &name) const
{
    const QString kind = m_movieMode ? tr("Movie") : tr("Photo");
    const QString place = QString::number(m_nameList.size() + 1);
    return kind + ' ' + place + timeOfCapture(name);
}

void PictureListView::requestThumbnail(const QString &name, QListWidgetItem *item)
{
    const QString folder = m_folder.isEmpty() ? WebcamUtil::getTemporaryPath() : m_folder;
    m_awaited.insert(++m_lastRequest, indexFromItem(item));
    m_loader->requestThumbnail(m_lastRequest, folder + "/" + name, iconSize() * devicePixelRatioF());
}

void PictureListView::showThumbnail(int id, const QImage &thumbnail)
{
    const QModelIndex index = m_awaited.take(id);
    if (index.isValid() && !thumbnail.isNull())
        model()->setData(index, iconOf(thumbnail), Qt::DecorationRole);
}

// Of a picture in the screen's own pixels.
QIcon PictureListView::iconOf(const QImage &thumbnail) const
{
    QPixmap pixmap = QPixmap::fromImage(thumbnail);
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    return {pixmap};
}

void PictureListView::forgetRequests()
{
    m_loader->cancel();
    m_awaited.clear();
}

void PictureListView::Reset()
{
    forgetRequests();
    clear();
    m_folder.clear();
    m_selectionList.clear();
    m_nameList.clear();
}

void PictureListView::Release()
{
    Reset();
    hide();
}

// Only who moves by keyboard needs to see where he is.
void PictureListView::keyPressEvent(QKeyEvent *event)
{
    m_isUsedByKeyboard = true;
    SwipedList::keyPressEvent(event);
}

void PictureListView::mousePressEvent(QMouseEvent *event)
{
    m_isUsedByKeyboard = false;
    SwipedList::mousePressEvent(event);
}

void PictureListView::focusInEvent(QFocusEvent *event)
{
    m_isUsedByKeyboard |= isByKeyboard(event->reason());
    SwipedList::focusInEvent(event);
}

QStyleOptionViewItem PictureListView::viewOptions() const
{
    QStyleOptionViewItem options = SwipedList::viewOptions();
    options.state.setFlag(QStyle::State_KeyboardFocusChange, m_isUsedByKeyboard);
    return options;
}

void PictureListView::selectedItem()
{
    // The changes below must not come back here.
    disconnect(this, &QListWidget::itemSelectionChanged, this, &PictureListView::selectedItem);
    if (selectedItems().size() > mostChosen)
        warnAboutTooMany();
    followSelection(selectedInListOrder());
    m_currentName = m_selectionList.isEmpty() ? QString() : m_selectionList.last();
    if (m_movieMode)
        chooseMovie();
    emit selectedPhoto();
    connect(this, &QListWidget::itemSelectionChanged, this, &PictureListView::selectedItem);
}

QList<QListWidgetItem *> PictureListView::selectedInListOrder() const
{
    QList<QListWidgetItem *> selected = selectedItems();
    std::sort(selected.begin(), selected.end(),
              [this](const QListWidgetItem *a, const QListWidgetItem *b) { return row(a) < row(b); });
    return selected;
}

// Earlier choices keep their place; of the new ones, those beyond the ninth are undone.
void PictureListView::followSelection(const QList<QListWidgetItem *> &selected)
{
    QStringList texts;
    for (const QListWidgetItem *item : selected)
        texts << item->text();

    QStringList kept;
    for (const QString &name : qAsConst(m_selectionList)) {
        if (texts.contains(name))
            kept << name;
    }
    m_selectionList = kept;

    for (QListWidgetItem *item : selected) {
        if (m_selectionList.contains(item->text()))
            continue;
        if (m_selectionList.size() < mostChosen)
            m_selectionList << item->text();
        else
            item->setSelected(false);
    }
}

void PictureListView::chooseMovie()
{
    m_currentName = previewOfMovie(m_currentName);
    m_selectionList.clear();
    if (!m_currentName.isEmpty())
        m_selectionList << m_currentName;
}

void PictureListView::OnSelect(const QString &name)
{
    if (m_selectionList.contains(name))
        return;
    if (m_selectionList.size() >= mostChosen) {
        if (QListWidgetItem *item = currentItem())
            item->setSelected(false);
        warnAboutTooMany();
        return;
    }
    m_currentName = name;
    if (m_movieMode)
        chooseMovie();
    else
        m_selectionList << name;
}

void PictureListView::UnSelect(const QString &name)
{
    m_selectionList.removeAll(name);
}

void PictureListView::warnAboutTooMany()
{
    WebcamUtil::WarningMessage(tr("You can not select 10 or more."), this);
}
