// The screens: what entering one does, and what is to be seen of it.

#include "dialog/pictoreldlg.h"

#include "capture/livevideowidget.h"
#include "capture/timerwidget.h"
#include "util/desktop/heap.h"
#include "util/desktop/screenawake.h"
#include "util/files/alivewait.h"
#include "util/webcamutil.h"
#include "widgets/moviewidget.h"
#include "widgets/picturelistview.h"
#include "widgets/picturewidget.h"
#include "widgets/stretchbitmapbutton.h"

#include <QTimer>

// The mode is stored last: while the new screen is entered, m_mode is still the one that is being left.
void CPictorelDlg::TransitionMode(DisplayMode mode, Variant variant)
{
    switch (mode) {
    case DisplayMode::Movie:
        SetMovieMode();
        break;
    case DisplayMode::Photo: // nothing but what is to be seen
        break;
    case DisplayMode::List:
        SetListMode();
        break;
    case DisplayMode::Series:
        if (variant != Variant::Grid)
            SetPhotSeqMode();
        break;
    case DisplayMode::Live:
    default:
        SetLiveMode();
    }
    m_mode = mode;
    m_variant = variant;
    showScreen(screenFor(situation(), m_screen), true);
    m_quietTimer->start();
}

// A movie must not wait for it; after one there is another screen.
void CPictorelDlg::giveBackMemory()
{
    if (!facts().isMovieRunning())
        startAside([] { giveBackFreedMemory(); });
}

void CPictorelDlg::SetLiveMode()
{
    if (!hasRoom() && !m_isErrorMode) {
        stop_window();
        WebcamUtil::ShowDiskWorningMessage(this);
        m_isErrorMode = true;
    }
    hiddenPictList();
    m_timerView->Stop();
    m_isSeriesRunning = false;
}

void CPictorelDlg::SetMovieMode()
{
    m_isMovieLoaded = false;
    m_isMovieAwaited = false;
}

void CPictorelDlg::SetListMode()
{
    releaseStrip();
    m_pictureView->Release();
    // The list of movies offers the photos, also after the loss of a camera has led away from them.
    m_offersPhotos = m_mode == DisplayMode::Movie || m_isMovieShown;
    m_showsChoice = false;
    m_isSeriesRunning = false;
}

// The live picture and the photo just taken side by side, above the strip.
void CPictorelDlg::SetPhotSeqMode()
{
    releaseStrip();
    m_liveView->Reset();
    m_pictureView->setLabelText(QString());
}

// Its thumbnails take their size from the height that it has by then.
void CPictorelDlg::releaseStrip()
{
    m_listView->Release();
    m_listView->setGeometry(m_layout.rectOf(Place::Strip));
    m_listView->setPictSize(QSize(0, 0));
}

// The press that leads here may come from a button on one of the photos, which must outlive it.
void CPictorelDlg::hiddenPictList()
{
    for (PictureWidget *photo : qAsConst(m_thumbnails)) {
        photo->hide();
        photo->deleteLater();
    }
    m_thumbnails.clear();
}

Situation CPictorelDlg::situation() const
{
    Situation now;
    now.mode = m_mode;
    now.variant = m_variant;
    now.facts = facts();
    now.isErrorMode = m_isErrorMode;
    now.isReturning = m_isReturning;
    now.hasPhotoPreview = m_hasPhotoPreview;
    now.isSeriesRunning = m_isSeriesRunning;
    now.isTimed = m_isAutoShooting;
    now.isMovieLoaded = m_isMovieLoaded;
    now.isPlaying = m_movieView->isPlayWanted();
    now.offersPhotos = m_offersPhotos;
    now.hasThumbnails = m_listView->count() > 0;
    now.hasChoice = !m_listView->selectionList().isEmpty();
    now.showsChoice = m_showsChoice;
    return now;
}

// After anything that a screen depends on has changed. The focus stays where the user has put it, unless
// another button is now the one to press.
void CPictorelDlg::refreshScreen()
{
    if (!m_liveView)
        return;
    const bool isHeldUp = facts().isHeldUp;
    if (isHeldUp && !m_focusBeforeWait)
        m_focusBeforeWait = focusWidget();
    const Screen screen = screenFor(situation(), m_screen);
    showScreen(screen, screen.focus != m_screen.focus || screen.isStripFocused != m_screen.isStripFocused);
    if (!isHeldUp && m_focusBeforeWait) {
        if (m_focusBeforeWait->isVisible() && m_focusBeforeWait->isEnabled())
            focusOn(m_focusBeforeWait);
        m_focusBeforeWait.clear();
    }
}

void CPictorelDlg::showScreen(const Screen &screen, bool movesFocus)
{
    m_screen = screen;
    m_layout.isUpright = facts().quarterTurns % 2 == 1;
    // Else it would go from button to button as they are hidden, and a screen reader would name them all.
    if (QWidget *before = movesFocus ? focusWidget() : nullptr)
        before->clearFocus();
    showViews(screen);
    showButtons(screen);
    if (movesFocus)
        moveFocus(screen);
}

void CPictorelDlg::showViews(const Screen &screen)
{
    const std::pair<QWidget *, Place> views[] = {{m_liveView, screen.live},
                                                 {m_movieView, screen.movie},
                                                 {m_pictureView, screen.picture},
                                                 {m_listView, screen.strip}};
    for (const auto &[view, place] : views) {
        if (place != Place::Hidden)
            view->setGeometry(m_layout.rectOf(place));
        view->setVisible(place != Place::Hidden);
    }
    m_timerView->setVisible(screen.hasTimer);
    m_screenAwake->keep(screen.isWatched);
}

void CPictorelDlg::showButtons(const Screen &screen)
{
    for (int id = 0; id < m_buttons.size(); ++id) {
        const ButtonState &state = screen[Button(id)];
        if (state.slot.kind != Slot::Kind::AsItIs)
            m_buttons[id]->setGeometry(m_layout.rectOf(state.slot));
        m_buttons[id]->setVisible(state.isShown);
        m_buttons[id]->setEnabled(state.isEnabled);
    }
    // On a wide screen the views beside them would reach down to these.
    button(Button::Apply)->raise();
    button(Button::Retry)->raise();
}

void CPictorelDlg::moveFocus(const Screen &screen)
{
    if (screen.isStripFocused)
        focusOn(m_listView);
    else if (screen.focus)
        focusOn(button(*screen.focus));
}
