#include "widgets/moviewidget.h"

#include "util/desktop/fonts.h"

#include <QLabel>
#include <QLoggingCategory>
#include <QShowEvent>
#include <QTimer>
#include <QUrl>

#include <phonon/AudioOutput>
#include <phonon/MediaObject>
#include <phonon/MediaSource>
#include <phonon/VideoWidget>

#include <iterator>
#include <utility>

namespace
{
// Time enough for the first picture to be on screen.
constexpr int firstPictureMilliseconds = 100;
// Movies seldom take as long to begin.
constexpr int standstillMilliseconds = 1000;
constexpr int mostRestarts = 3;

Q_LOGGING_CATEGORY(playerLog, "orvane.player")
} // namespace

MovieWidget::MovieWidget(QWidget *parent)
    : Phonon::VideoPlayer(parent), m_caption(new QLabel(tr("Movie"), this)), m_firstPicture(new QTimer(this)),
      m_standstill(new QTimer(this))
{
    QPalette colours = palette();
    colours.setColor(QPalette::Window, Qt::black);
    colours.setColor(QPalette::WindowText, Qt::green);
    setPalette(colours);

    setAccessibleName(m_caption->text());
    m_caption->setAutoFillBackground(true);
    m_caption->setPalette(colours);
    m_caption->setFont(captionFont());
    m_caption->adjustSize();

    m_firstPicture->setSingleShot(true);
    m_firstPicture->setInterval(firstPictureMilliseconds);
    connect(m_firstPicture, &QTimer::timeout, this, &MovieWidget::disp);
    m_standstill->setSingleShot(true);
    connect(m_standstill, &QTimer::timeout, this, &MovieWidget::restart);
}

bool MovieWidget::Create(const QString &path)
{
    while (!prepare()) {
    }
    forgetWish();
    endStart();
    m_isToRewind = false;
    m_path = path;
    loadFile();
    m_created = true;
    if (isVisible())
        showFirstPicture();
    return true;
}

// The first word with the player loads all of its machinery, which would take a quarter of the program's
// start, and in one piece would let the window stand still.
bool MovieWidget::prepare()
{
    static constexpr void (MovieWidget::*parts[])() = {&MovieWidget::loadSound, &MovieWidget::loadPicture,
                                                       &MovieWidget::makeWindow, &MovieWidget::makePlayer};
    if (m_partsMade == std::size(parts))
        return true;
    (this->*parts[m_partsMade++])();
    return false;
}

// Its plug-ins stay, for the player's own.
void MovieWidget::loadSound()
{
    const Phonon::AudioOutput first;
}

void MovieWidget::loadPicture()
{
    const Phonon::VideoWidget first;
}

// The picture is drawn into a window of the X server's, which needs one for each widget around it.
void MovieWidget::makeWindow()
{
    winId();
}

void MovieWidget::makePlayer()
{
    // Phonon measures the window for the picture before it knows the movie's size, and a square is what it
    // takes then. Given the whole widget, the sink keeps the movie's proportions itself.
    videoWidget()->setAspectRatio(Phonon::VideoWidget::AspectRatioWidget);
    const Phonon::MediaObject *player = mediaObject();
    connect(player, &Phonon::MediaObject::stateChanged, this, &MovieWidget::followWish);
    connect(player, &Phonon::MediaObject::totalTimeChanged, this, &MovieWidget::followWish);
    connect(player, &Phonon::MediaObject::hasVideoChanged, this, &MovieWidget::followWish);
    connect(player, &Phonon::MediaObject::finished, this, &MovieWidget::forgetWish);
    // The widget for the picture has come later and lies over it.
    m_caption->raise();
}

void MovieWidget::loadFile()
{
    load(Phonon::MediaSource(QUrl::fromLocalFile(m_path)));
}

void MovieWidget::Release() {}

void MovieWidget::Play()
{
    m_firstPicture->stop();
    m_isPlayWanted = true;
    if (!isPlaying())
        start();
}

void MovieWidget::start()
{
    m_isStarting = true;
    m_restarts = 0;
    m_standstill->start(standstillMilliseconds);
    play();
}

// Now and then the player comes to a standstill while it is starting, which only stopping ends. After a movie
// that it could not play it may forget that it was told to, or never begin with the next one until that is
// loaded anew.
void MovieWidget::restart()
{
    if (++m_restarts > mostRestarts) {
        noteBreakdown();
        return;
    }
    m_standstill->start(standstillMilliseconds << m_restarts); // it may only have been slow
    stop();
    loadFile();
    play();
}

// Its sound server has gone, or it has no machinery to play with. It may play when it is told to again.
void MovieWidget::noteBreakdown()
{
    qCWarning(playerLog, "%s: The player does not play it. %s", qUtf8Printable(m_path),
              qUtf8Printable(mediaObject()->errorString()));
    endStart();
    forgetWish();
    emit finished();
    emit brokeDown();
}

bool MovieWidget::hasStopped()
{
    return m_isPlayWanted && !m_isStarting && mediaObject()->state() == Phonon::StoppedState;
}

// At a movie's end the player stops before it tells of the end, after which nothing is wanted of it.
void MovieWidget::lookForBreakdown()
{
    if (hasStopped())
        noteBreakdown();
}

void MovieWidget::endStart()
{
    m_standstill->stop();
    m_isStarting = false;
}

// The player waits at the movie's beginning. Stopping it altogether would hold up the window while the player
// waits for its threads, one of which sleeps for a twentieth of a second at a time.
void MovieWidget::Stop()
{
    const bool hasBegun = !m_isStarting && (isPlaying() || isPaused());
    forgetWish();
    endStart();
    if (!hasBegun) {
        stop();
        return;
    }
    m_isToRewind = true;
    Phonon::VideoPlayer::pause();
    rewind();
}

// Not before it is held: else the player takes itself for playing from then on.
void MovieWidget::rewind()
{
    if (isPaused() && std::exchange(m_isToRewind, false))
        seek(0);
}

void MovieWidget::Reset()
{
    Stop();
    Play();
}

bool MovieWidget::isComplete()
{
    return currentTime() >= totalTime();
}

void MovieWidget::disp()
{
    forgetWish();
    // Pausing while it is starting is what brings the player to a standstill: it is held once it plays. It
    // may have forgotten the start.
    if (m_isStarting)
        play();
    else
        Phonon::VideoPlayer::pause();
}

void MovieWidget::forgetWish()
{
    m_firstPicture->stop();
    m_isPlayWanted = false;
}

void MovieWidget::followWish()
{
    if (isPlaying())
        endStart();
    else if (hasStopped())
        QMetaObject::invokeMethod(this, &MovieWidget::lookForBreakdown, Qt::QueuedConnection);
    rewind();
    if (m_isPlayWanted && !m_isStarting && isPaused())
        start();
    else if (!m_isPlayWanted && isPlaying() && !m_firstPicture->isActive())
        Phonon::VideoPlayer::pause();
}

void MovieWidget::showEvent(QShowEvent *event)
{
    Phonon::VideoPlayer::showEvent(event);
    const bool isFromIcon = event->spontaneous(); // what plays goes on
    if (m_created && !isFromIcon)
        showFirstPicture();
}

void MovieWidget::showFirstPicture()
{
    forgetWish();
    m_firstPicture->start();
    start();
}
