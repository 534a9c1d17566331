// The screens.

#include "dialog/pictoreldlg.h"

#include "capture/livevideowidget.h"
#include "capture/timerwidget.h"
#include "util/webcamutil.h"
#include "widgets/moviewidget.h"
#include "widgets/picturelistview.h"
#include "widgets/picturewidget.h"
#include "widgets/stretchbitmapbutton.h"

namespace
{
// The strip of thumbnails takes this part of the height above the row.
constexpr double stripsPerHeight = 5.0;
} // namespace

// The mode is stored last: while the new screen is built, m_mode is still the one that is being left.
void CPictorelDlg::TransitionMode(DisplayMode mode)
{
    switch (mode) {
    case DisplayMode::Movie:
        SetMovieMode();
        break;
    case DisplayMode::Photo:
        SetPhotoMode();
        break;
    case DisplayMode::List:
        SetListMode();
        break;
    case DisplayMode::Series:
        SetPhotSeqMode();
        break;
    case DisplayMode::Live:
    default:
        SetLiveMode();
    }
    m_mode = mode;
    focusMainButton();
}

void CPictorelDlg::SetLiveMode()
{
    if (!WebcamUtil::chkdiskFreeSpace() && !m_isErrorMode) {
        stop_window();
        WebcamUtil::ShowDiskWorningMessage(this);
        m_isErrorMode = true;
    }
    hiddenPictList();
    m_pictureView->hide();
    m_movieView->hide();
    m_timerView->Stop();
    m_timerView->hide();
    m_liveView->setVisible(m_isVideoPresent);
    m_listView->hide();
    m_isRecording = false;
    setLivemodeButtonEnabled();
    setErrModeButtonEnable();
}

void CPictorelDlg::SetMovieMode()
{
    m_liveView->hide();
    m_movieView->setGeometry(m_viewRect);
    setMovieModeButton();
}

void CPictorelDlg::SetPhotoMode()
{
    if (m_hasPhotoPreview) {
        SetLivePhotoMode();
        return;
    }
    m_pictureView->setGeometry(m_viewRect);
    m_live->setGeometry(m_rowRect);
    m_live->show();
    setPhotoModeButtonEnabled();
    m_close->setEnabled(true);
}

// The photo beside the live picture.
void CPictorelDlg::SetLivePhotoMode()
{
    m_liveView->setGeometry(m_halfRect);
    QRect mirrored = m_halfRect;
    mirrored.setLeft(m_halfRect.right() + 1);
    mirrored.setRight(2 * (m_halfRect.right() + 1) - m_halfRect.left() - 1);
    m_pictureView->setGeometry(mirrored);

    const double middle = width() * 0.5;
    const int top = height() - 2 * m_rowButtonHeight;
    m_apply->setGeometry(int(middle - m_rowButtonWidth), top, m_rowButtonWidth, m_rowButtonHeight);
    m_retry->setGeometry(int(middle), top, m_rowButtonWidth, m_rowButtonHeight);

    m_isRecording = false;
    setLivePhotoModeButtonEnabled();
    m_settings->show();
    m_settings->setEnabled(false);
    m_close->setEnabled(false);
}

void CPictorelDlg::SetListMode()
{
    layOutStrip();
    m_pictureView->Release();
    m_pictureView->setGeometry(m_halfRect);
    setListButton();
}

// The live picture and the photo just taken side by side, above the strip.
void CPictorelDlg::SetPhotSeqMode()
{
    const int areaHeight = layOutStrip();
    const double halfWidth = width() * 0.5;
    const QSize fitted = m_liveView->size().scaled(int(halfWidth), areaHeight, Qt::KeepAspectRatio);
    const double x = (halfWidth - fitted.width()) * 0.5;
    const int y = int((areaHeight - fitted.height()) * 0.5);
    m_liveView->setGeometry(QRect(QPoint(int(x), y), fitted));
    m_liveView->Reset();
    m_pictureView->setGeometry(QRect(QPoint(int(x + halfWidth), y), fitted));
    m_pictureView->setLabelText(QString());
    m_isRecording = false;
    setLivemodeButtonEnabled();
}

// Empties the strip of thumbnails and gives it its place above the row; returns the height above it.
int CPictorelDlg::layOutStrip()
{
    m_listView->Release();
    const double stripHeight = (height() - m_rowButtonHeight) / stripsPerHeight;
    const double top = height() - (m_rowButtonHeight + stripHeight);
    m_listView->setGeometry(0, int(top), width(), int(stripHeight));
    m_listView->setPictSize(QSize(0, 0));
    return int(top);
}

void CPictorelDlg::allWidgethide()
{
    m_liveView->hide();
    m_movieView->hide();
    m_pictureView->hide();
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
