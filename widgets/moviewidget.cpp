#include "widgets/moviewidget.h"

#include <QLabel>
#include <QTimer>
#include <QUrl>

#include <phonon/MediaSource>

namespace
{
// Time enough for the first picture to be on screen.
constexpr int kFirstPictureMilliseconds = 100;
} // namespace

MovieWidget::MovieWidget(QWidget *parent) : Phonon::VideoPlayer(parent)
{
    QPalette colours = palette();
    colours.setColor(QPalette::Window, Qt::black);
    colours.setColor(QPalette::WindowText, Qt::green);
    setPalette(colours);

    auto *caption = new QLabel(tr("Movie"), this);
    caption->setPalette(colours);
    caption->setFont(QFont("Arial", 24, 5));
    caption->adjustSize();
}

bool MovieWidget::Create(const QString &path)
{
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
    play();
    QTimer::singleShot(kFirstPictureMilliseconds, this, &MovieWidget::disp);
}
