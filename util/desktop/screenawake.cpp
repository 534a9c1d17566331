#include "util/desktop/screenawake.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QLoggingCategory>
#include <QX11Info>

#include <utility>

// Last: Xlib's macros break Qt's headers.
#include <X11/extensions/scrnsaver.h>

namespace
{

Q_LOGGING_CATEGORY(screenLog, "orvane.screen")

QDBusMessage callOf(const char *method)
{
    const QString name = QStringLiteral("org.freedesktop.ScreenSaver");
    QDBusMessage call = QDBusMessage::createMethodCall(name, QStringLiteral("/org/freedesktop/ScreenSaver"),
                                                       name, QLatin1String(method));
    // Nothing blanks the screen where the service does not run.
    call.setAutoStartService(false);
    return call;
}

bool hasExtension(Display *display)
{
    int event = 0;
    int error = 0;
    return display && XScreenSaverQueryExtension(display, &event, &error);
}

// Without an address one would be made up by starting a bus, of which no desktop knows.
bool hasSessionBus()
{
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") &&
           QDBusConnection::sessionBus().isConnected();
}

} // namespace

ScreenAwake::ScreenAwake(QString reason, QObject *parent) : QObject(parent), m_reason(std::move(reason)) {}

ScreenAwake::~ScreenAwake()
{
    keep(false);
}

void ScreenAwake::keep(bool isKept)
{
    if (isKept == m_isKept)
        return;
    m_isKept = isKept;
    askServer();
    if (isKept)
        askDesktop();
    else
        takeLeaveOfDesktop();
}

// The server's own screen saver, and the monitor's sleep with it.
void ScreenAwake::askServer() const
{
    Display *display = QX11Info::display();
    if (hasExtension(display)) {
        XScreenSaverSuspend(display, m_isKept);
        XFlush(display);
    } else if (m_isKept && !hasSessionBus()) {
        qCWarning(screenLog, "The screen may go dark: neither the X server nor the desktop can be asked.");
    }
}

void ScreenAwake::askDesktop()
{
    if (m_isAsked || m_cookie != 0 || !hasSessionBus())
        return;
    m_isAsked = true;
    QDBusMessage call = callOf("Inhibit");
    call << QCoreApplication::applicationName() << m_reason;
    auto *answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, &ScreenAwake::noteAnswer);
}

// A desktop that does not know the question has nothing that would blank the screen, or leaves it to the
// server.
void ScreenAwake::noteAnswer(QDBusPendingCallWatcher *answer)
{
    answer->deleteLater();
    m_isAsked = false;
    const QDBusPendingReply<uint> reply = *answer;
    if (!reply.isError())
        m_cookie = reply.value();
    if (!m_isKept)
        takeLeaveOfDesktop();
}

void ScreenAwake::takeLeaveOfDesktop()
{
    if (m_cookie == 0)
        return;
    QDBusMessage call = callOf("UnInhibit");
    call << std::exchange(m_cookie, 0);
    QDBusConnection::sessionBus().send(call);
}
