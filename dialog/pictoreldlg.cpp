#include "dialog/pictoreldlg.h"

#include "capture/livevideowidget.h"
#include "capture/timerwidget.h"
#include "dialog/keyhelp.h"
#include "dialog/waitemsgdlg.h"
#include "settings/setting.h"
#include "util/desktop/screenawake.h"
#include "util/files/alivewait.h"
#include "util/webcamutil.h"
#include "widgets/moviewidget.h"
#include "widgets/picturelistview.h"
#include "widgets/picturewidget.h"
#include "widgets/stretchbitmapbutton.h"

#include <QEvent>
#include <QFile>
#include <QGuiApplication>
#include <QIcon>
#include <QScreen>
#include <QShortcut>
#include <QTimer>

namespace
{

// The player is loaded in the background once the camera's picture is there: nobody needs it sooner.
constexpr std::chrono::milliseconds playerDelay(2000);

// After a change of screens: what the last one held is freed by then, also by threads that end later.
constexpr std::chrono::milliseconds quietDelay(3000);

} // namespace

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
    m_liveView->setGeometry(m_layout.rectOf(Place::Live));
    // A camera may be lost as soon as it runs: a warning of the first screen leaves time for it. Changed
    // facts are followed later: a command in the middle of which they change goes on first.
    connect(&m_liveView->facts(), &CaptureFacts::changed, this, &CPictorelDlg::followFacts,
            Qt::QueuedConnection);
    connect(m_liveView, &LiveVideoWidget::disconnectDevice, this, &CPictorelDlg::changeNodevicemode);
    m_liveView->Start();
    TransitionMode(DisplayMode::Live);
    SetLocalConnect();
    QTimer::singleShot(playerDelay, m_liveView, &LiveVideoWidget::preparePlayer);

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
    m_layout.screen = available.size();
    m_screenCorner = available.topLeft();
}

// A projector is plugged in, a panel appears, or another screen becomes the primary one.
void CPictorelDlg::followScreen()
{
    const auto follow = [this](const QScreen *screen) {
        connect(screen, &QScreen::availableGeometryChanged, this, &CPictorelDlg::fitToScreen,
                Qt::UniqueConnection);
    };
    for (const QScreen *screen : QGuiApplication::screens())
        follow(screen);
    connect(qApp, &QGuiApplication::screenAdded, this, follow);
    connect(qApp, &QGuiApplication::primaryScreenChanged, this, &CPictorelDlg::fitToScreen);
}

void CPictorelDlg::fitToScreen()
{
    takeScreenSize();
    for (CStretchBitmapButton *one : qAsConst(m_buttons))
        one->setIconFromObjectNameBitmap();
    placeCornerButtons();
    setFixedSize(m_layout.screen);
    move(m_screenCorner);
    m_timerView->move(m_layout.screen.width() - m_timerView->width(), m_timerView->y());
    refreshScreen();
    placeTiles();
    if (m_screen.strip != Place::Hidden)
        m_listView->fitThumbnails();
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
    m_listView->setAccessibleName(tr("List"));
    m_listView->hide();
    m_settingDialog = new Setting(this);
    m_waitDialog = new CWaiteMsgDlg(this);
    m_waitDialog->hide();
    m_waitDialog->setLoadingTexts(tr("File is loading. Please wait..."), tr("File loaded successfully."),
                                  tr("Load failed."));
    m_screenAwake = new ScreenAwake(tr("Live"), this);
    m_returnTimer = new QTimer(this);
    m_followTimer = new QTimer(this);
    m_closeTimer = new QTimer(this);
    m_quietTimer = new QTimer(this);
    for (QTimer *timer : {m_returnTimer, m_followTimer, m_closeTimer, m_quietTimer}) {
        timer->setSingleShot(true);
        timer->setInterval(retryPeriod);
    }
    m_quietTimer->setInterval(quietDelay);
    m_settingDialog->installEventFilter(this);
    m_waitDialog->installEventFilter(this);
}

void CPictorelDlg::setWindowFrame()
{
    setFixedSize(m_layout.screen);
    move(m_screenCorner);
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setWindowTitle(tr("Orvane"));
    setWindowIcon(QIcon(":/res/Pictorel.ico"));
}

void CPictorelDlg::SetBaseRect()
{
    m_layout.native = m_liveView->getNativeSize();
}

// The size of the camera's picture is known from here on, and with it where pictures are shown.
void CPictorelDlg::openCamera()
{
    m_liveView->Create();
    if (!m_liveView->isVideoValid() || !m_liveView->isCreate())
        m_isErrorMode = true;
    m_settingDialog->setResolutionList(m_liveView->GetResoList());
    SetBaseRect();
}

const Facts &CPictorelDlg::facts() const
{
    return m_liveView->facts().now();
}

void CPictorelDlg::SetLocalConnect()
{
    connect(m_movieView, &MovieWidget::finished, this, &CPictorelDlg::OnMovieFinished);
    connect(m_movieView, &MovieWidget::brokeDown, this, &CPictorelDlg::tellOfPlayer, Qt::QueuedConnection);
    connect(m_timerView, &TimerWidget::movieTimeOver, this, &CPictorelDlg::OnMovieStop);
    connect(m_timerView, &TimerWidget::shot, this, &CPictorelDlg::OnShot);
    connect(m_timerView, &TimerWidget::set, this, &CPictorelDlg::setMovieTime);
    connect(m_listView, &PictureListView::itemSelectionChanged, this, &CPictorelDlg::PictureSelected);
    connect(m_listView, &PictureListView::selectedPhoto, this, &CPictorelDlg::PictureSelected);
    connect(this, &CPictorelDlg::loadcomp, m_waitDialog, &CWaiteMsgDlg::comp);
    connect(m_waitDialog, &CWaiteMsgDlg::OnShow, this, &CPictorelDlg::dirLoad);
    connect(m_returnTimer, &QTimer::timeout, this, &CPictorelDlg::reopenCamera);
    connect(m_followTimer, &QTimer::timeout, this, &CPictorelDlg::followFacts);
    connect(m_closeTimer, &QTimer::timeout, this, &CPictorelDlg::OnClose);
    connect(m_quietTimer, &QTimer::timeout, this, &CPictorelDlg::giveBackMemory);
    connect(new QShortcut(QKeySequence::Copy, this), &QShortcut::activated, this, &CPictorelDlg::OnCopy);
    auto *help = new QShortcut(Qt::Key_F1, this);
    help->setAutoRepeat(false);
    connect(help, &QShortcut::activated, this, &CPictorelDlg::showKeys);
    followScreen();
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

// In the middle of a wait whatever closed it would only come afterwards.
void CPictorelDlg::showKeys()
{
    if (!isWaitingAlive())
        new KeyHelp(this);
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
    if (!m_liveView->isVideoValid())
        m_isErrorMode = true;
    TransitionMode(m_mode);
}
