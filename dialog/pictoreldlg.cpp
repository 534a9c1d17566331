#include "dialog/pictoreldlg.h"

#include "capture/livevideowidget.h"
#include "capture/timerwidget.h"
#include "dialog/waitemsgdlg.h"
#include "settings/setting.h"
#include "util/webcamutil.h"
#include "widgets/moviewidget.h"
#include "widgets/picturelistview.h"
#include "widgets/picturewidget.h"

#include <QEvent>
#include <QFile>
#include <QGuiApplication>
#include <QIcon>
#include <QScreen>

CPictorelDlg::CPictorelDlg(QWidget *parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), CWindowManagement(this, raisePeriodMs, true, QString())
{
    // Goes on while the buttons are made.
    LiveVideoWidget::prepare();
    setThisPropaty();
    takeScreenSize();
    SetButtonInstance();
    SetButtonCaptionText();
    SetChildInstance();

    m_isStartable = selectVideoDevice();
    if (!m_isStartable)
        return;

    GetSetting();
    setWindowFrame();
    openCamera();
    m_liveView->setGeometry(m_viewRect);
    // A camera may be lost as soon as it runs: a warning of the first screen leaves time for it.
    connect(m_liveView, &LiveVideoWidget::disconnectDevice, this, &CPictorelDlg::changeNodevicemode);
    m_liveView->Start();
    TransitionMode(DisplayMode::Live);
    m_movieView->setGeometry(m_viewRect);
    m_movieView->hide();
    SetLocalConnect();

    // A picture is never mirrored, whatever the language.
    m_liveView->setLayoutDirection(Qt::LeftToRight);
    m_movieView->setLayoutDirection(Qt::LeftToRight);
}

CPictorelDlg::~CPictorelDlg() = default;

void CPictorelDlg::setThisPropaty()
{
    setAttribute(Qt::WA_PaintOnScreen, false);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, Qt::black);
    colours.setColor(QPalette::WindowText, Qt::white);
    setPalette(colours);
}

void CPictorelDlg::takeScreenSize()
{
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    m_screenWidth = available.width();
    m_screenHeight = available.height();
    m_screenCorner = available.topLeft();
}

// The order of making is the order of stacking: the timer lies over the views.
void CPictorelDlg::SetChildInstance()
{
    m_liveView = new LiveVideoWidget(this);
    m_liveView->hide();
    m_movieView = new MovieWidget(this);
    m_movieView->hide();
    m_pictureView = new PictureWidget(this);
    m_pictureView->hide();
    m_timerView = new TimerWidget(this);
    m_timerView->SetMode(TimerMode::Recording);
    m_listView = new PictureListView(this);
    m_listView->hide();
    m_settingDialog = new Setting(this);
    m_waitDialog = new CWaiteMsgDlg(this);
    m_waitDialog->hide();
    m_waitDialog->setLoadingTexts(tr("File is loading. Please wait..."), tr("File loaded successfully."),
                                  tr("Load failed."));
    m_settingDialog->installEventFilter(this);
    m_waitDialog->installEventFilter(this);
}

void CPictorelDlg::setWindowFrame()
{
    setFixedSize(int(m_screenWidth), int(m_screenHeight));
    move(m_screenCorner);
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setWindowTitle(tr("Orvane"));
    setWindowIcon(QIcon(":/res/Pictorel.ico"));
}

void CPictorelDlg::SetBaseRect()
{
    const int rowTop = int(m_screenHeight - m_rowButtonHeight);
    m_rowRect = QRect(0, rowTop, m_rowButtonWidth, m_rowButtonHeight);

    QSize native = m_liveView->getNativeSize();
    if (native.width() < 1 || native.height() < 1)
        native = QSize(1, 1);

    const QSize full = native.scaled(int(m_screenWidth), rowTop, Qt::KeepAspectRatio);
    m_viewRect = QRect(QPoint(int((m_screenWidth - full.width()) * 0.5), 0), full);

    const QSize half = native.scaled(int(m_screenWidth * 0.5), rowTop, Qt::KeepAspectRatio);
    const double halfTop = (m_screenHeight - 2 * m_rowButtonHeight - half.height()) * 0.5;
    m_halfRect = QRect(QPoint(0, int(halfTop)), half);

    m_movieView->setGeometry(m_viewRect);
}

// The size of the camera's picture is known from here on, and with it where pictures are shown.
void CPictorelDlg::openCamera()
{
    m_liveView->Create();
    copyDeviceFlags();
    if (!m_isVideoPresent || !m_liveView->isCreate())
        m_isErrorMode = true;
    m_settingDialog->setResolutionList(m_liveView->GetResoList());
    SetBaseRect();
}

void CPictorelDlg::copyDeviceFlags()
{
    m_isVideoPresent = m_liveView->isVideoValid();
    m_isAudioPresent = m_liveView->isAudioValid();
}

void CPictorelDlg::SetLocalConnect()
{
    connectButtons();
    connect(m_movieView, &MovieWidget::finished, this, &CPictorelDlg::OnMovieFinished);
    connect(m_timerView, &TimerWidget::movieTimeOver, this, &CPictorelDlg::OnMovieStop);
    connect(m_timerView, &TimerWidget::shot, this, &CPictorelDlg::OnShot);
    connect(m_timerView, &TimerWidget::set, this, &CPictorelDlg::setMovieTime);
    connect(m_listView, &PictureListView::itemSelectionChanged, this, &CPictorelDlg::PictureSelected);
    connect(m_listView, &PictureListView::selectedPhoto, this, &CPictorelDlg::PictureSelected);
    connect(this, &CPictorelDlg::loadcomp, m_waitDialog, &CWaiteMsgDlg::comp);
    connect(m_waitDialog, &CWaiteMsgDlg::OnShow, this, &CPictorelDlg::dirLoad);
}

bool CPictorelDlg::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress)
        m_isKeyboardUsed = true;
    else if (event->type() == QEvent::MouseButtonPress)
        m_isKeyboardUsed = false;
    else if (event->type() == QEvent::Show && (watched == m_settingDialog || watched == m_waitDialog))
        // Where no window manager looks after it, a window shown again lies as deep as it was made, and this
        // one has been raised since.
        static_cast<QWidget *>(watched)->raise();
    return QWidget::eventFilter(watched, event);
}

void CPictorelDlg::SetPluginPath(const QString &dir)
{
    m_applicationDirectory = dir;
    m_soundCommand.clear();
    if (QFile::exists(dir + "/photo.wav"))
        m_soundCommand = WebcamUtil::playsound();
}

void CPictorelDlg::GetSetting()
{
    m_continuousCount = m_settingDialog->getContinuousShooting();
    m_autoShootingTime = m_settingDialog->getAutoShootingTime();
    m_isAutoShooting = m_settingDialog->getAutoShooting();
    m_hasPhotoPreview = m_settingDialog->getPhotoPreview();
    m_saveDirectory = m_settingDialog->getSaveDirectory();
    // Only kept for the user: the camera's native size serves the board best.
    static_cast<void>(m_settingDialog->getResolution());
}

void CPictorelDlg::OnSettingDlg()
{
    stop_window();
    if (m_settingDialog->exec() != QDialog::Accepted)
        return;
    m_settingDialog->SaveFile();
    GetSetting();
    copyDeviceFlags();
    if (!m_isVideoPresent)
        m_isErrorMode = true;
    TransitionMode(m_mode);
}
