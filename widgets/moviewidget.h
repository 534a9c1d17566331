#pragma once

#include <phonon/VideoPlayer>

#include <cstddef>

class QLabel;
class QTimer;

// Plays one recorded movie. When it is loaded and shown it starts, and waits a moment later with its first
// picture, unless it was told to play before. Positions and the end are those of the player that it is.
class MovieWidget : public Phonon::VideoPlayer
{
    Q_OBJECT

public:
    explicit MovieWidget(QWidget *parent = nullptr);

    // Whether a movie was ever loaded.
    bool isCreated() const { return m_created; }
    // The movie that was loaded last; empty before the first.
    QString path() const { return m_path; }

    // Whether the movie was told to play, and neither to wait nor to stop since, nor came to its end: what
    // the player does follows a moment later. A player that breaks down counts as having come to the end,
    // with finished(), brokeDown() and a line on stderr.
    bool isPlayWanted() const { return m_isPlayWanted; }

    // Makes the next part of the player, some twenty milliseconds' work; true when none is left. Create()
    // makes at once what is lacking.
    bool prepare();

    // As disp(): the player's own would not know of the wish.
    void pause() { disp(); }

signals:
    // It could not be started in several tries, or has stopped in the middle.
    void brokeDown();

public slots:
    // Loads the movie; true, also when it turns out not to be playable.
    bool Create(const QString &path);
    void Release(); // nothing is to be released
    void Play();
    void Stop();
    void Reset(); // from the beginning
    bool isComplete();
    void disp(); // holds the picture that is shown; while the player is starting, its first

protected:
    void showEvent(QShowEvent *event) override;

private:
    void loadSound();
    void loadPicture();
    void makeWindow();
    void makePlayer();
    void loadFile();
    void showFirstPicture();
    void start();
    void restart();
    void noteBreakdown();
    bool hasStopped();
    void lookForBreakdown();
    void endStart();
    void rewind();
    void followWish();
    void forgetWish();

    QLabel *m_caption;
    QTimer *m_firstPicture; // runs from showing the movie until it is held
    QTimer *m_standstill;   // runs while it is starting, until it is given up
    QString m_path;
    std::size_t m_partsMade = 0;
    bool m_created = false;
    bool m_isPlayWanted = false;
    bool m_isStarting = false; // told to play, and does not yet
    bool m_isToRewind = false; // was stopped, and is not held yet
    int m_restarts = 0;        // of this start
};
