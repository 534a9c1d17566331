// The list, the grid of chosen photos and one photo of it.

#include "dialog/pictoreldlg.h"

#include "capture/timerwidget.h"
#include "util/files/capturenames.h"
#include "util/webcamutil.h"
#include "widgets/moviewidget.h"
#include "widgets/picturelistview.h"
#include "widgets/picturewidget.h"
#include "widgets/stretchbitmapbutton.h"

namespace
{

// More than these would make a strip that nobody scrolls through; the latest are kept.
constexpr int mostMoviesListed = 25;
constexpr int mostPhotosListed = 50;

} // namespace

QString CPictorelDlg::listedFolder() const
{
    return m_listView->folder().isEmpty() ? WebcamUtil::getTemporaryPath() : m_listView->folder();
}

void CPictorelDlg::OnList()
{
    stop_window();
    const QString folder = listedFolder();
    m_listView->Reset();
    QStringList names = WebcamUtil::getFileListFromDir(
        folder, {m_isMovieShown ? movieFilter(photoEnding) : photoFilter(photoEnding)});
    m_listView->setMovieMode(m_isMovieShown);
    hiddenPictList();
    if (m_movieView->isCreated())
        m_movieView->Stop();
    m_timerView->Stop(); // or a timed series would go on behind the list
    TransitionMode(DisplayMode::List);

    const int most = m_isMovieShown ? mostMoviesListed : mostPhotosListed;
    names = names.mid(qMax(0, names.size() - most));
    m_listView->setFolder(folder);
    m_listView->AddPicture(names);
    m_listView->clearSelectionList();
    refreshScreen();
}

void CPictorelDlg::PictureSelected()
{
    // A warning of the list may be answered when the camera's loss has already led to another screen.
    if (m_mode != DisplayMode::List)
        return;
    m_showsChoice = true;
    refreshScreen();
    // A click comes here by two ways, and reading a photo takes its time. The list's folder need not be
    // compared: whatever changes it empties the viewer. When nothing is chosen any more the preview is black,
    // for a photo in it would be taken for a chosen one.
    const QString name = m_listView->currentName();
    if (name.isEmpty() || m_pictureView->fileName() != name)
        showInPictureView(name, m_listView->folder());
}

void CPictorelDlg::OnShow()
{
    if (m_isMovieShown)
        showMovie();
    else
        SetPictureListMode(m_listView->selectionList().mid(0, PictureListView::mostChosen));
}

void CPictorelDlg::showMovie()
{
    m_shownMovie = listedFolder() + "/" + WebcamUtil::movieName(m_listView->currentName());
    TransitionMode(DisplayMode::Movie);
    m_timerView->SetMode(TimerMode::Playback);
    loadMovie(m_shownMovie);
}

void CPictorelDlg::SetPictureListMode(const QStringList &names)
{
    m_thumbnails.clear();
    TransitionMode(DisplayMode::Series, Variant::Grid);
    const QVector<QRect> places = gridTiles(viewRect(), names.size());
    for (int i = 0; i < names.size(); ++i)
        addTile(names[i], places[i], i + 1, names.size() > 1);
}

// Anew, for another size of the window. A tile has kept no more of its photo than it has shown.
void CPictorelDlg::placeTiles()
{
    const QVector<QRect> places = gridTiles(viewRect(), m_thumbnails.size());
    for (int i = 0; i < m_thumbnails.size(); ++i) {
        PictureWidget *tile = m_thumbnails[i];
        tile->setGeometry(tile->isZoomed() ? viewRect() : places[i]);
        tile->Loadbmp(QString(), m_listView->folder());
    }
}

void CPictorelDlg::addTile(const QString &name, const QRect &place, int number, bool zoomable)
{
    auto *tile = new PictureWidget(this);
    tile->setGeometry(place);
    tile->Loadbmp(name, m_listView->folder());
    tile->setNumber(number);
    if (zoomable) {
        tile->ListMode();
        connect(tile, &PictureWidget::onZoom, this, &CPictorelDlg::OnZoom);
        connect(tile, &PictureWidget::onBack, this, &CPictorelDlg::OnBack);
    }
    tile->show();
    m_thumbnails.append(tile);
}

void CPictorelDlg::OnZoom(PictureWidget *pict)
{
    for (PictureWidget *tile : qAsConst(m_thumbnails))
        tile->hide();
    // The tile has kept a small copy only.
    pict->Loadbmp(QString(), m_listView->folder());
    pict->setGeometry(viewRect());
    pict->ZoomMode();
    pict->show();
    // The button that was pressed is gone; without this the focus would jump to the row.
    for (CStretchBitmapButton *button : pict->findChildren<CStretchBitmapButton *>()) {
        if (!button->isHidden())
            focusOn(button);
    }
}

void CPictorelDlg::OnBack(PictureWidget *)
{
    hiddenPictList();
    SetPictureListMode(m_listView->selectionList());
}

void CPictorelDlg::OnPictureList()
{
    m_thumbnails.clear();
    const QStringList names = WebcamUtil::getTempPhotoNameList();
    if (!names.isEmpty())
        SetPictureListMode(names);
}

void CPictorelDlg::OnPhotoChange()
{
    m_isMovieShown = false;
    OnList();
    SignalBlockAll(false);
}

void CPictorelDlg::OnMovieChange()
{
    m_isMovieShown = true;
    OnList();
}
