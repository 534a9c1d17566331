#include "util/desktop/windowmanagement.h"

#include <QApplication>
#include <QTimerEvent>
#include <QX11Info>

#include <cstdio>
#include <cstdlib>

// Last: Xlib's macros break Qt's headers.
#include <X11/Xlib.h>

namespace
{

bool isUnmapped(Display *display, Window window)
{
    XWindowAttributes attributes = {};
    return XGetWindowAttributes(display, window, &attributes) && attributes.map_state == IsUnmapped;
}

// Window managers leave this mark on the windows in their care, as on icons.
bool isManaged(Display *display, Window window)
{
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char *state = nullptr;
    XGetWindowProperty(display, window, XInternAtom(display, "WM_STATE", False), 0, 0, False, AnyPropertyType,
                       &type, &format, &count, &left, &state);
    if (state)
        XFree(state);
    return type != 0;
}

} // namespace

CWMUpdateTimer::CWMUpdateTimer(int ms, CWMUpdateCallback *callback) : m_callback(callback)
{
    start(ms);
}

void CWMUpdateTimer::start(int ms)
{
    if (m_timerId != 0)
        stop();
    // A coarse timer may come a twentieth late, and the whiteboard would stay on top for longer than
    // promised.
    m_timerId = startTimer(ms, Qt::PreciseTimer);
}

void CWMUpdateTimer::stop()
{
    if (m_timerId != 0)
        killTimer(m_timerId);
    m_timerId = 0;
}

void CWMUpdateTimer::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_timerId && m_callback)
        m_callback->update_window();
}

CWindowManagement::CWindowManagement(QWidget *widget, int ms, bool raiseParents, const QString &processName)
    : m_widget(widget), m_processName(processName), m_raiseParents(raiseParents)
{
    if (!m_widget)
        return;
    m_timer = std::make_unique<CWMUpdateTimer>(ms, this);
    start_window(ms);
}

CWindowManagement::~CWindowManagement()
{
    stop_window();
}

void CWindowManagement::start_window(int ms)
{
    if (!m_widget)
        return;
    m_timer->stop();
    m_timer->start(ms);
}

void CWindowManagement::stop_window()
{
    if (m_timer)
        m_timer->stop();
}

void CWindowManagement::update_window()
{
    if (!m_widget)
        return;
    if (!m_processName.isEmpty()) {
        std::string name = m_processName.toLocal8Bit().toStdString();
        if (isRunning(name))
            return;
    }
    if (m_widget->isActiveWindow() || !mayRaise())
        return;
    if (m_raiseParents)
        raiseParentWidgetTop(m_widget->parentWidget());
    raiseQtWindowTop(m_widget->winId());
}

// Raising maps: a hidden window would come up behind Qt's back. And a window whose user has to answer a modal
// dialog of the program first must not cover that dialog.
bool CWindowManagement::mayRaise() const
{
    const QWidget *modal = QApplication::activeModalWidget();
    return m_widget->isVisible() && (!modal || modal == m_widget);
}

void CWindowManagement::raiseParentWidgetTop(QWidget *widget)
{
    if (!widget)
        return;
    raiseParentWidgetTop(widget->parentWidget());
    // Not winId(): it would turn a parent that has no window of its own into a native one.
    raiseQtWindowTop(widget->effectiveWinId());
}

void CWindowManagement::raiseQtWindowTop(WId window)
{
    Display *display = QX11Info::display();
    // A busy window manager has yet to map it. Mapped behind the manager's back, it would never come into its
    // care: without focus, and over every dialog of its own.
    if (!display || (isUnmapped(display, window) && !isManaged(display, window)))
        return;
    Window root = 0;
    Window parent = 0;
    Window *children = nullptr;
    unsigned int count = 0;
    if (!XQueryTree(display, window, &root, &parent, &children, &count))
        return;
    if (children)
        XFree(children);
    // The parent is the window manager's frame, which is what is stacked; without a window manager it is the
    // root window, which has no place in any stack.
    if (parent != 0 && parent != root)
        raiseWindowTop(parent);
    raiseWindowTop(window);
}

void CWindowManagement::raiseWindowTop(WId window)
{
    Display *display = QX11Info::display();
    if (!display)
        return;
    // While override-redirect is set the window manager is not asked, so that it cannot refuse.
    XSetWindowAttributes attributes = {};
    attributes.override_redirect = True;
    XChangeWindowAttributes(display, window, CWOverrideRedirect, &attributes);
    XMapRaised(display, window);
    XRaiseWindow(display, window);
    XMapRaised(display, window);
    attributes.override_redirect = False;
    XChangeWindowAttributes(display, window, CWOverrideRedirect, &attributes);
    XFlush(display);
}

bool CWindowManagement::isRunning(std::string &name)
{
    const std::string command = "ps -ef | grep " + name + " | grep -v grep | wc -l";
    FILE *pipe = popen(command.c_str(), "r");
    if (!pipe)
        return false;
    char line[32] = {};
    const bool answered = fgets(line, sizeof line, pipe) != nullptr;
    pclose(pipe);
    return answered && strtol(line, nullptr, 10) > 0;
}

CWindowManagementMessageBox::CWindowManagementMessageBox(QMessageBox::Icon icon, const QString &title,
                                                         const QString &text,
                                                         QMessageBox::StandardButtons buttons,
                                                         QWidget *parent, Qt::WindowFlags flags, int ms)
    : QMessageBox(icon, title, text, buttons, parent, flags), CWindowManagement(this, ms, false, QString())
{
}
