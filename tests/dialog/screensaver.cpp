#include "tests/dialog/screensaver.h"

#include <QTest>

// Last: Xlib's macros break Qt's headers.
#include <X11/extensions/scrnsaver.h>

ScreenSaver::ScreenSaver() : m_display(XOpenDisplay(nullptr))
{
    XSetScreenSaver(m_display, 1, 0, DefaultBlanking, DefaultExposures);
}

ScreenSaver::~ScreenSaver()
{
    XCloseDisplay(m_display);
}

bool ScreenSaver::comes() const
{
    XResetScreenSaver(m_display);
    XSync(m_display, 0);
    constexpr int limit = 1800; // milliseconds
    return QTest::qWaitFor([this] { return isOn(); }, limit);
}

bool ScreenSaver::isOn() const
{
    XScreenSaverInfo info = {};
    XScreenSaverQueryInfo(m_display, DefaultRootWindow(m_display), &info);
    return info.state == ScreenSaverOn;
}
