#include "capture/timerwidget.h"

#include "platform/movielimits.h"

#include "util/desktop/fonts.h"
#include "util/files/timetext.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

static constexpr int tickMilliseconds = 1000;

const int TimerWidget::recordingLimit = longestRecordingSeconds;

TimerWidget::TimerWidget(QWidget *parent, Qt::WindowFlags flags)
    : SpokenLabel(parent, flags), m_ticker(new QTimer(this))
{
    QPalette colours = palette();
    colours.setColor(QPalette::Window, Qt::black);
    colours.setColor(QPalette::WindowText, Qt::green);
    setPalette(colours);
    setFont(captionFont());

    m_ticker->setInterval(tickMilliseconds);
    connect(m_ticker, &QTimer::timeout, this, &TimerWidget::showtime);
}

void TimerWidget::setText(const QString &text)
{
    setAutoFillBackground(!text.isEmpty()); // it lies over a picture
    QLabel::setText(text);
}

void TimerWidget::setcount(int seconds)
{
    m_count = seconds;
    m_remaining = seconds;
}

void TimerWidget::run()
{
    m_elapsed = 0;
    m_remaining = m_count;
    if (!m_ticker->isActive())
        m_ticker->start();
    showtime();
}

void TimerWidget::Pause()
{
    m_ticker->stop();
}

void TimerWidget::Stop()
{
    m_elapsed = 0;
    m_ticker->stop();
}

void TimerWidget::reset()
{
    Stop();
    setText(QString());
    m_mode = TimerMode::None;
}

void TimerWidget::SetMode(TimerMode mode)
{
    hide();
    if (mode != m_mode) {
        m_elapsed = 0;
        setText(widestText(mode));
        adjustSize();
        move(QGuiApplication::primaryScreen()->availableGeometry().width() - width(), y());
        setText(QString());
    }
    m_mode = mode;
}

QString TimerWidget::widestText(TimerMode mode) const
{
    switch (mode) {
    case TimerMode::Countdown:
        return tr("0 second to capture  ");
    case TimerMode::Playback:
        return "00:00/00:00";
    case TimerMode::Recording:
        return "00:00";
    case TimerMode::None:
        break;
    }
    return {};
}

void TimerWidget::showtime()
{
    switch (m_mode) {
    case TimerMode::Countdown:
        countDown();
        break;
    case TimerMode::Playback:
        emit set();
        break;
    case TimerMode::Recording:
        showRecordingTime();
        break;
    case TimerMode::None:
        break;
    }
}

void TimerWidget::countDown()
{
    if (m_remaining == 0) {
        m_remaining = m_count;
        setText(QString());
        emit shot();
        return;
    }
    if (isHidden())
        show();
    setText(QString::number(m_remaining) + tr(" second to capture"));
    announce(text());
    --m_remaining;
}

void TimerWidget::showRecordingTime()
{
    setText(minutesAndSeconds(m_elapsed));
    if (m_elapsed == 0)
        announce(tr("Recording"));
    if (m_elapsed >= recordingLimit)
        emit movieTimeOver();
    ++m_elapsed;
}
