#pragma once

#include "util/desktop/spokenlabel.h"

class QTimer;

// What each tick of a TimerWidget does.
enum class TimerMode {
    Countdown = 0, // counts down to a shot, over and over
    Playback = 1,  // asks the owner for the played time of a movie
    Recording = 2, // shows how long a movie has been recorded
    None = 3
};

// A one-line caption that ticks once a second: the countdown of the self-timer, the time of a movie being
// recorded, or the beat for the time of a movie being played. It shows text only; its signals tell the owner
// what to do. Each second of a countdown is read aloud, and that a recording begins.
class TimerWidget : public SpokenLabel
{
    Q_OBJECT

public:
    // A recording ends after this many seconds.
    static const int recordingLimit;

    explicit TimerWidget(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());

    // The length of the countdown in seconds; it starts from there.
    void setcount(int seconds);

    // Starts from the beginning, with a first tick at once.
    void run();

    // Stops ticking and keeps the time.
    void Pause();

    // Stops ticking and forgets the time.
    void Stop();

    // As Stop(), and clears caption and mode.
    void reset();

    // The caption; without a text nothing of it covers what lies below.
    void setText(const QString &text);

    // Hides the caption. A mode other than the present one also clears the time and the text, and puts the
    // caption at the right end of the screen, wide enough for what the mode will show.
    void SetMode(TimerMode mode);

signals:
    void timeover(); // never emitted
    void shot();
    void set();
    void movieTimeOver();

private slots:
    void showtime();

private:
    void countDown();
    void showRecordingTime();
    QString widestText(TimerMode mode) const;

    int m_elapsed = 0; // seconds of the recording
    int m_count = 0;
    int m_remaining = 0; // seconds to the next shot
    TimerMode m_mode = TimerMode::None;
    QTimer *m_ticker;
};
