#pragma once

struct _XDisplay; // NOLINT(bugprone-reserved-identifier): Xlib has named it so

// Another client of the X server, which has the screen saver come after a second in which nobody does
// anything, and sees whether it has.
class ScreenSaver
{
public:
    ScreenSaver();
    ~ScreenSaver();
    ScreenSaver(const ScreenSaver &) = delete;
    ScreenSaver &operator=(const ScreenSaver &) = delete;

    // Whether it comes, in the time to come.
    bool comes() const;

private:
    bool isOn() const;

    _XDisplay *m_display;
};
