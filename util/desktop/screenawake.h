#pragma once

#include <QObject>
#include <QString>

class QDBusPendingCallWatcher;

// Keeps screen saver, blanking and the lock that comes with them away while something is to be watched. Both
// who may bring them are asked: the X server, and the desktop's session where there is one. What was kept
// away comes again when this object goes, or the program ends in any way.
class ScreenAwake : public QObject
{
public:
    // Keeps nothing away yet. The desktop may show the reason to the user.
    explicit ScreenAwake(QString reason, QObject *parent = nullptr);
    ~ScreenAwake() override;

    // From now on, or no longer; waits for nobody. Where neither of the two can be asked a line on stderr
    // says so, in the category "orvane.screen".
    void keep(bool isKept);

private:
    void askServer() const;
    void askDesktop();
    void noteAnswer(QDBusPendingCallWatcher *answer);
    void takeLeaveOfDesktop();

    const QString m_reason;
    bool m_isKept = false;
    bool m_isAsked = false; // the desktop, and it has not answered
    uint m_cookie = 0;      // of the desktop; 0 while it keeps nothing away for us
};
