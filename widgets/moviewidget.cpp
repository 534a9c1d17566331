#include "widgets/moviewidget.h"

#include "util/desktop/fonts.h"

#include <QLabel>
#include <QShowEvent>
#include <QTimer>
#include <QUrl>

#include <phonon/MediaObject>
#include <phonon/MediaSource>
#include <phonon/VideoWidget>

namespace
{
// Time enough for the first picture to be on screen.
constexpr int firstPictureMilliseconds = 100;

// A movie loads in less. One that comes right after one that cannot be played is stopped now and then by the
// end of that, and is loaded again; how often is for those that can never be played.
constexpr int loadingMilliseconds = 700;
constexpr int mostLoads = 3;
} // namespace

MovieWidget::MovieWidget(QWidget *parent)
    : Phonon::VideoPlayer(parent), m_caption(new QLabel(tr("Movie"), this)), m_firstPicture(new QTimer(this)),
      m_loading(new QTimer(this))
{
    QPalette colours = palette();
    colours.setColor(QPalette::Window, Qt::black);
    colours.setColor(QPalette::WindowText, Qt::green);
    setPalette(colours);

    m_caption->setAutoFillBackground(true);
    m_caption->setPalette(colours);
    m_caption->setFont(captionFont());
    m_caption->adjustSize();

    m_firstPicture->setSingleShot(true);
    m_firstPicture->setInterval(firstPictureMilliseconds);
    connect(m_firstPicture, &QTimer::timeout, this, &MovieWidget::disp);
    m_loading->setSingleShot(true);
    m_loading->setInterval(loadingMilliseconds);
    connect(m_loading, &QTimer::timeout, this, &MovieWidget::loadAgain);
}

bool MovieWidget::Create(const QString &path)
{
    if (!m_created)
        setUpPlayer();
    forgetWish();
    m_created = true;
    m_path = path;
    m_loads = 0;
    loadMovie();
    return true;
}

void MovieWidget::loadMovie()
{
    ++m_loads;
    load(Phonon::MediaSource(QUrl::fromLocalFile(m_path)));
    m_loading->start();
}

void MovieWidget::loadAgain()
{
    if (totalTime() > 0 || isPlaying() || m_loads >= mostLoads)
        return;
    loadMovie();
    if (m_isPlayWanted)
        play();
    else if (isVisible())
        showFirstPicture();
}

// Not before there is a movie: the first word with the player loads all of its machinery, which would take a
// quarter of the program's start.
void MovieWidget::setUpPlayer()
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

void MovieWidget::Release() {}

void MovieWidget::Play()
{
    m_firstPicture->stop();
    m_isPlayWanted = true;
    if (!isPlaying())
        play();
}

void MovieWidget::Stop()
{
    forgetWish();
    stop();
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
    Phonon::VideoPlayer::pause();
}

void MovieWidget::forgetWish()
{
    m_firstPicture->stop();
    m_isPlayWanted = false;
}

// A player that does not yet know its movie may forget what it was told.
void MovieWidget::followWish()
{
    if (m_isPlayWanted && isPaused())
        play();
    else if (!m_isPlayWanted && isPlaying() && !m_firstPicture->isActive())
        Phonon::VideoPlayer::pause();
}

void MovieWidget::showEvent(QShowEvent *event)
{
    Phonon::VideoPlayer::showEvent(event);
    if (event->spontaneous()) // the window comes back from its icon: what plays goes on
        return;
    showFirstPicture();
}

void MovieWidget::showFirstPicture()
{
    forgetWish();
    m_firstPicture->start();
    play();
}
