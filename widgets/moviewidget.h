#pragma once

#include <phonon/VideoPlayer>

// Plays one recorded movie. When it is shown it starts, and waits a moment later with its first picture.
// Positions and the end are those of the player that it is.
class MovieWidget : public Phonon::VideoPlayer
{
    Q_OBJECT

public:
    explicit MovieWidget(QWidget *parent = nullptr);

    // Whether a movie was ever loaded.
    bool isCreated() const { return m_created; }

public slots:
    // Loads the movie; true, also when it turns out not to be playable.
    bool Create(const QString &path);
    void Release(); // nothing is to be released
    void Play();
    void Stop();
    void Reset(); // from the beginning
    bool isComplete();
    void disp(); // holds the picture that is shown

protected:
    void showEvent(QShowEvent *event) override;

private:
    bool m_created = false;
};
