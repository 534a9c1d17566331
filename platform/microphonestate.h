#pragma once

#include <QString>

#include <chrono>
#include <mutex>
#include <optional>

// How one microphone does, from its opening on. Any thread.
class MicrophoneState
{
public:
    using Clock = std::chrono::steady_clock;

    // Its driver has answered: it is open, or cannot be opened.
    void noteAnswer(bool isOpen);
    // Sound has come.
    void noteSound();
    // It gives no sound any more, or never did; the first reason stands.
    void fail(const QString &why);

    // Whether it is usable: it gives sound, or was opened half a second ago and has told no error since.
    // Nothing while that is not known.
    std::optional<bool> isUsable() const;
    // Whether it ever was.
    std::optional<bool> wasUsable() const;
    // Whether it gives sound now, be it in bursts, or has been opened or begun to open only now.
    bool isSoundDue() const;
    // Whether the driver has answered to the opening.
    bool hasAnswered() const;
    // Why it counts as lost: it failed, or it has been silent for two seconds or opening for five. Empty
    // while all is well.
    QString loss() const;

private:
    mutable std::mutex m_mutex; // guards all below
    const Clock::time_point m_startedAt = Clock::now();
    bool m_hasAnswered = false;
    std::optional<Clock::time_point> m_openedAt;
    std::optional<Clock::time_point> m_lastSound;
    QString m_failure;
};
