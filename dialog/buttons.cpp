#include "dialog/pictoreldlg.h"

#include "widgets/stretchbitmapbutton.h"

#include <algorithm>

void CPictorelDlg::SetButtonInstance()
{
    m_live = createButton("Live");
    m_photo = createButton("Photo");
    m_photoMulti = createButton("PhotoMulti");
    m_movie = createButton("Movie");
    m_movieStop = createButton("MovieStop");
    m_list = createButton("List");
    m_settings = createButton("Settings");
    m_close = createButton("Close");
    m_apply = createButton("Apply");
    m_retry = createButton("Retry");
    m_moviePlay = createButton("MoviePlay");
    m_moviePause = createButton("MoviePause");
    m_show = createButton("Show");
    m_switchPhoto = createButton("SwitchPhoto");
    m_switchMovie = createButton("SwitchMovie");
    m_back = createButton("Back");
    m_load = createButton("Load");
    m_rowButtonWidth = m_live->width();
    m_rowButtonHeight = m_live->height();
    placeCornerButtons();
    setVXSButton();
    setTabSequence();
    hideAllButton();
}

CStretchBitmapButton *CPictorelDlg::createButton(const QString &name)
{
    auto *button = new CStretchBitmapButton(name, this);
    button->setObjectName(name);
    button->installEventFilter(this);
    m_buttons.append(button);
    return button;
}

void CPictorelDlg::setVXSButton()
{
    m_putPhoto = createButton("PutPhoto");
    m_putMovie = createButton("PutMovie");
}

// Close and Settings share the height of the row, at the right end of it.
void CPictorelDlg::placeCornerButtons()
{
    const int halfHeight = m_rowButtonHeight / 2;
    if (halfHeight <= m_close->height() - 1) {
        const QSize size = m_close->size().scaled(m_rowButtonWidth, halfHeight, Qt::KeepAspectRatio);
        m_close->resize(size);
        m_settings->resize(size);
    }
    m_close->move(int(m_screenWidth - m_close->width()), int(m_screenHeight - m_close->height()));
    m_settings->move(m_close->x(), m_close->y() - m_settings->height());
}

void CPictorelDlg::SetButtonCaptionText()
{
    m_live->setCaptionText(tr("Live"));
    m_photo->setCaptionText(tr("Photo"));
    m_photoMulti->setCaptionText(tr("Continuous\nCapture"));
    m_movie->setCaptionText(tr("Movie"));
    m_movieStop->setCaptionText(tr("Stop"));
    m_list->setCaptionText(tr("List"));
    m_settings->setCaptionText(tr("Settings"));
    m_close->setCaptionText(tr("Exit"));
    m_apply->setCaptionText(tr("Accept"));
    m_retry->setCaptionText(tr("Retry"));
    m_moviePlay->setCaptionText(tr("Play"));
    m_moviePause->setCaptionText(tr("Pause"));
    m_show->setCaptionText(tr("View"));
    m_switchPhoto->setCaptionText(tr("Movie /\n    Photo"));
    m_switchMovie->setCaptionText(tr("Photo /\n    Movie"));
    m_back->setCaptionText(tr("Back"));
    m_putPhoto->setCaptionText(tr("Paste"));
    m_putMovie->setCaptionText(tr("Paste"));
    m_load->setCaptionText(tr("Load"));
}

// One sequence that runs from left to right in every row.
void CPictorelDlg::setTabSequence()
{
    const std::initializer_list<CStretchBitmapButton *> sequence = {
        m_apply,       m_retry,       m_live,  m_photo,      m_putPhoto,  m_show,
        m_photoMulti,  m_movieStop,   m_movie, m_moviePause, m_moviePlay, m_load,
        m_switchPhoto, m_switchMovie, m_list,  m_settings,   m_close};
    CStretchBitmapButton *previous = nullptr;
    for (CStretchBitmapButton *button : sequence) {
        if (previous)
            setTabOrder(previous, button);
        previous = button;
    }
}

void CPictorelDlg::connectButtons()
{
    using Slot = void (CPictorelDlg::*)();
    const std::initializer_list<std::pair<CStretchBitmapButton *, Slot>> commands = {
        {m_live, &CPictorelDlg::OnLive},
        {m_close, &CPictorelDlg::OnClose},
        {m_movie, &CPictorelDlg::OnRecord},
        {m_moviePlay, &CPictorelDlg::OnMoviePlay},
        {m_movieStop, &CPictorelDlg::OnMovieStop},
        {m_moviePause, &CPictorelDlg::OnMoviePause},
        {m_photo, &CPictorelDlg::OnPhoto},
        {m_retry, &CPictorelDlg::OnRetake},
        {m_apply, &CPictorelDlg::OnAply},
        {m_load, &CPictorelDlg::OnDirLoad},
        {m_putPhoto, &CPictorelDlg::OnVXS},
        {m_putMovie, &CPictorelDlg::OnVXS},
        {m_list, &CPictorelDlg::OnList},
        {m_show, &CPictorelDlg::OnShow},
        {m_photoMulti, &CPictorelDlg::OnPhotSeq},
        {m_switchPhoto, &CPictorelDlg::OnPhotoChange},
        {m_switchMovie, &CPictorelDlg::OnMovieChange},
        {m_settings, &CPictorelDlg::OnSettingDlg},
    };
    for (const auto &[button, slot] : commands)
        connect(button, &QPushButton::clicked, this, slot);
}

QVector<CStretchBitmapButton *>
CPictorelDlg::buttonsExcept(std::initializer_list<const CStretchBitmapButton *> excepted) const
{
    QVector<CStretchBitmapButton *> buttons;
    for (CStretchBitmapButton *button : m_buttons) {
        if (std::find(excepted.begin(), excepted.end(), button) == excepted.end())
            buttons.append(button);
    }
    return buttons;
}

// Whoever works with the keyboard sees where the focus went when the row changed under it. Nobody else is to
// see where Qt has put it meanwhile, as if it had been moved by key.
void CPictorelDlg::focusOn(QWidget *widget)
{
    if (QWidget *meanwhile = focusWidget())
        meanwhile->clearFocus();
    widget->setFocus(m_isKeyboardUsed ? Qt::TabFocusReason : Qt::OtherFocusReason);
}

// The button that is most likely pressed next on the screen as it is.
void CPictorelDlg::focusMainButton()
{
    for (CStretchBitmapButton *button :
         {m_apply, m_photo, m_movieStop, m_moviePause, m_moviePlay, m_photoMulti, m_live, m_list, m_close}) {
        if (!button->isHidden() && button->isEnabled()) {
            focusOn(button);
            return;
        }
    }
}
