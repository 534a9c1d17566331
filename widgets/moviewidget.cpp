#include "widgets/moviewidget.h"

#include "util/desktop/fonts.h"

#include <QLabel>
#include <QShowEvent>
#include <QTimer>
#include <QUrl>

#include <phonon/MediaSource>
#include <phonon/VideoWidget>

namespace
{
// Time enough for the first picture to be on screen.
constexpr int firstPictureMilliseconds = 100;
} // namespace

MovieWidget::MovieWidget(QWidget *parent) : Phonon::VideoPlayer(parent)
{
    QPalette colours = palette();
    colours.setColor(QPalette::Window, Qt::black);
    colours.setColor(QPalette::WindowText, Qt::green);
    setPalette(colours);

    auto *caption = new QLabel(tr("Movie"), this);
    caption->setAutoFillBackground(true);
    caption->setPalette(colours);
    caption->setFont(captionFont());
    caption->adjustSize();
}

bool MovieWidget::Create(const QString &path)
{
    // Phonon measures the window for the picture before it knows the movie's size, and a square is what it
    // takes then. Given the whole widget, the sink keeps the movie's proportions itself. Not sooner: the
    // first word with the player loads all of its machinery, which would take a quarter of the program's
    // start.
    videoWidget()->setAspectRatio(Phonon::VideoWidget::AspectRatioWidget);
    load(Phonon::MediaSource(QUrl::fromLocalFile(path)));
    m_created = true;
    return true;
}

void MovieWidget::Release() {}

void MovieWidget::Play()
{
    if (!isPlaying())
        play();
}

void MovieWidget::Stop()
{
    stop();
}

void MovieWidget::Reset()
{
    stop();
    play();
}

bool MovieWidget::isComplete()
{
    return currentTime() >= totalTime();
}

void MovieWidget::disp()
{
    pause();
}

void MovieWidget::showEvent(QShowEvent *event)
{
    Phonon::VideoPlayer::showEvent(event);
    if (event->spontaneous()) // the window comes back from its icon: what plays goes on
        return;
    play();
    QTimer::singleShot(firstPictureMilliseconds, this, &MovieWidget::disp);
}
