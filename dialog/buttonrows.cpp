// The rows of buttons at the bottom edge, one for each screen.

#include "dialog/pictoreldlg.h"

#include "widgets/stretchbitmapbutton.h"

namespace
{
constexpr int liveRowButtons = 5;
constexpr int otherRowButtons = 3;
} // namespace

// Gives the button the slot at x; returns where the next slot begins.
double CPictorelDlg::setButtonX(CStretchBitmapButton *button, double x)
{
    button->setGeometry(int(x), m_rowRect.top(), m_rowButtonWidth, m_rowButtonHeight);
    return x + m_rowButtonWidth;
}

// Where a row of so many buttons begins, centred in what the button for leaving leaves free.
double CPictorelDlg::firstButtonX(int buttons) const
{
    const int half = (m_live->width() * buttons) / 2;
    return (width() - m_close->width()) * 0.5 - half;
}

double CPictorelDlg::putOn(CStretchBitmapButton *button, double x)
{
    const double next = setButtonX(button, x);
    button->show();
    button->setEnabled(true);
    return next;
}

void CPictorelDlg::clearRow()
{
    hideAllButton();
    disableAllButton(false);
}

void CPictorelDlg::hideAllButton()
{
    for (CStretchBitmapButton *button : buttonsExcept({m_close}))
        button->hide();
}

// Leaving stays as it is, and so do the two buttons that are only ever there to be pressed.
void CPictorelDlg::disableAllButton(bool enabled)
{
    for (CStretchBitmapButton *button : buttonsExcept({m_close, m_back, m_load}))
        button->setEnabled(enabled);
}

void CPictorelDlg::SignalBlockAll(bool block)
{
    for (CStretchBitmapButton *button : buttonsExcept({m_putPhoto, m_putMovie, m_load}))
        button->blockSignals(block);
}

void CPictorelDlg::setLivemodeButtonEnabled()
{
    clearRow();
    double x = firstButtonX(liveRowButtons);
    x = putOn(m_live, x);
    x = putOn(m_photo, x);
    x = putOn(m_photoMulti, x);
    setButtonX(m_movieStop, x);
    x = putOn(m_movie, x);
    putOn(m_list, x);
    m_close->show();
    m_close->setEnabled(true);
    m_settings->show();
    for (CStretchBitmapButton *button : {m_live, m_photo, m_photoMulti, m_movie, m_settings})
        button->setEnabled(m_isVideoPresent);
}

void CPictorelDlg::setPhotoModeButtonEnabled()
{
    clearRow();
    double x = firstButtonX(otherRowButtons);
    x = putOn(m_live, x);
    x = putOn(m_putPhoto, x);
    putOn(m_list, x);
    m_close->show();
    m_close->setEnabled(false);
}

// The row of the screen before stays, but only for the eye.
void CPictorelDlg::setLivePhotoModeButtonEnabled()
{
    disableAllButton(false);
    for (CStretchBitmapButton *button : {m_apply, m_retry}) {
        button->show();
        button->setEnabled(true);
    }
    m_live->show();
    m_settings->hide();
}

void CPictorelDlg::setMovieModeButton()
{
    clearRow();
    double x = firstButtonX(otherRowButtons);
    x = putOn(m_live, x);
    setButtonX(m_moviePause, x);
    m_moviePause->setEnabled(true);
    x = putOn(m_moviePlay, x);
    putOn(m_list, x);
}

void CPictorelDlg::setListButton()
{
    clearRow();
    double x = firstButtonX(otherRowButtons);
    x = putOn(m_live, x);
    x = setButtonX(m_show, x);
    m_show->show();
    x = putOn(m_load, x);
    putOn(m_mode == DisplayMode::Movie ? m_switchPhoto : m_switchMovie, x);
    m_close->show();
    m_close->setEnabled(true);
}

void CPictorelDlg::setShowModeButton()
{
    clearRow();
    double x = firstButtonX(otherRowButtons);
    x = putOn(m_live, x);
    x = putOn(m_putPhoto, x);
    putOn(m_list, x);
    m_close->show();
    m_close->setEnabled(true);
}

void CPictorelDlg::setErrModeButtonEnable()
{
    if (!m_isErrorMode)
        return;
    disableAllButton(false);
    for (CStretchBitmapButton *button : {m_list, m_switchMovie, m_switchPhoto, m_show})
        button->setEnabled(true);
}
