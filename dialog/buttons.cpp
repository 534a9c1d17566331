#include "dialog/pictoreldlg.h"

#include "widgets/stretchbitmapbutton.h"

namespace
{

// A button: its bitmaps' name, its caption, and what pressing it does.
struct Entry {
    const char *bitmap;
    const char *caption;
    void (CPictorelDlg::*command)();
};

// By their numbers. A new button is a new entry, and a place in a row of screenFor().
const Entry entries[] = {
    {"Live", QT_TRANSLATE_NOOP("CPictorelDlg", "Live"), &CPictorelDlg::OnLive},
    {"Photo", QT_TRANSLATE_NOOP("CPictorelDlg", "Photo"), &CPictorelDlg::OnPhoto},
    {"PhotoMulti", QT_TRANSLATE_NOOP("CPictorelDlg", "Continuous\nCapture"), &CPictorelDlg::OnPhotSeq},
    {"Movie", QT_TRANSLATE_NOOP("CPictorelDlg", "Movie"), &CPictorelDlg::OnRecord},
    {"MovieStop", QT_TRANSLATE_NOOP("CPictorelDlg", "Stop"), &CPictorelDlg::OnMovieStop},
    {"List", QT_TRANSLATE_NOOP("CPictorelDlg", "List"), &CPictorelDlg::OnList},
    {"Settings", QT_TRANSLATE_NOOP("CPictorelDlg", "Settings"), &CPictorelDlg::OnSettingDlg},
    {"Close", QT_TRANSLATE_NOOP("CPictorelDlg", "Exit"), &CPictorelDlg::OnClose},
    {"Apply", QT_TRANSLATE_NOOP("CPictorelDlg", "Accept"), &CPictorelDlg::OnAply},
    {"Retry", QT_TRANSLATE_NOOP("CPictorelDlg", "Retry"), &CPictorelDlg::OnRetake},
    {"MoviePlay", QT_TRANSLATE_NOOP("CPictorelDlg", "Play"), &CPictorelDlg::OnMoviePlay},
    {"MoviePause", QT_TRANSLATE_NOOP("CPictorelDlg", "Pause"), &CPictorelDlg::OnMoviePause},
    {"Show", QT_TRANSLATE_NOOP("CPictorelDlg", "View"), &CPictorelDlg::OnShow},
    {"SwitchPhoto", QT_TRANSLATE_NOOP("CPictorelDlg", "Movie /\n    Photo"), &CPictorelDlg::OnPhotoChange},
    {"SwitchMovie", QT_TRANSLATE_NOOP("CPictorelDlg", "Photo /\n    Movie"), &CPictorelDlg::OnMovieChange},
    {"Back", QT_TRANSLATE_NOOP("CPictorelDlg", "Back"), nullptr},
    {"Load", QT_TRANSLATE_NOOP("CPictorelDlg", "Load"), &CPictorelDlg::OnDirLoad},
    {"PutPhoto", QT_TRANSLATE_NOOP("CPictorelDlg", "Paste"), &CPictorelDlg::OnVXS},
    {"PutMovie", QT_TRANSLATE_NOOP("CPictorelDlg", "Paste"), &CPictorelDlg::OnVXS},
};
static_assert(sizeof entries / sizeof *entries == buttonCount, "every button has an entry");

} // namespace

void CPictorelDlg::SetButtonInstance()
{
    for (int id = 0; id < int(Button::PutPhoto); ++id)
        createButton(Button(id));
    placeCornerButtons();
    setVXSButton();
    setTabSequence();
    m_screen.hideAllButton();
    showButtons(m_screen);
}

void CPictorelDlg::createButton(Button id)
{
    const Entry &entry = entries[int(id)];
    auto *made = new CStretchBitmapButton(entry.bitmap, this);
    made->setObjectName(entry.bitmap);
    made->installEventFilter(this);
    if (entry.command)
        connect(made, &QPushButton::clicked, this, entry.command);
    m_buttons.append(made);
}

void CPictorelDlg::setVXSButton()
{
    createButton(Button::PutPhoto);
    createButton(Button::PutMovie);
}

// Close and Settings share the height of the row, at the right end of it.
void CPictorelDlg::placeCornerButtons()
{
    CStretchBitmapButton *close = button(Button::Close);
    CStretchBitmapButton *settings = button(Button::Settings);
    m_layout.rowButton = button(Button::Live)->baseSize();
    QSize closeSize = close->baseSize();
    QSize settingsSize = settings->baseSize();
    const int halfHeight = m_layout.rowButton.height() / 2;
    if (halfHeight <= closeSize.height() - 1) {
        closeSize.scale(m_layout.rowButton.width(), halfHeight, Qt::KeepAspectRatio);
        settingsSize = closeSize;
    }
    m_layout.closeButton = closeSize;
    const QSize &screen = m_layout.screen;
    close->setGeometry(
        {{screen.width() - closeSize.width(), screen.height() - closeSize.height()}, closeSize});
    settings->setGeometry({{close->x(), close->y() - settingsSize.height()}, settingsSize});
}

void CPictorelDlg::SetButtonCaptionText()
{
    for (int id = 0; id < m_buttons.size(); ++id)
        m_buttons[id]->setCaptionText(tr(entries[id].caption));
}

// One sequence that runs from left to right in every row.
void CPictorelDlg::setTabSequence()
{
    CStretchBitmapButton *previous = nullptr;
    for (const Button id : {Button::Apply, Button::Retry, Button::Live, Button::Photo, Button::PutPhoto,
                            Button::Show, Button::PhotoMulti, Button::MovieStop, Button::Movie,
                            Button::MoviePause, Button::MoviePlay, Button::Load, Button::SwitchPhoto,
                            Button::SwitchMovie, Button::List, Button::Settings, Button::Close}) {
        if (previous)
            setTabOrder(previous, button(id));
        previous = button(id);
    }
}

void CPictorelDlg::SignalBlockAll(bool block)
{
    for (int id = 0; id < m_buttons.size(); ++id) {
        if (Button(id) != Button::PutPhoto && Button(id) != Button::PutMovie && Button(id) != Button::Load)
            m_buttons[id]->blockSignals(block);
    }
}

// Whoever works with the keyboard sees where the focus went when the row changed under it. Nobody else is to
// see where Qt has put it meanwhile, as if it had been moved by key.
void CPictorelDlg::focusOn(QWidget *widget)
{
    if (QWidget *meanwhile = focusWidget())
        meanwhile->clearFocus();
    widget->setFocus(m_isKeyboardUsed ? Qt::TabFocusReason : Qt::OtherFocusReason);
}
