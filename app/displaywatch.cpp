#include "app/displaywatch.h"

#include <QX11Info>

#include <cstdlib>
#include <poll.h>
#include <string_view>
#include <sys/eventfd.h>
#include <unistd.h>

// Last: Xlib's macros break Qt's headers.
#include <X11/Xlib.h>

static void endWith(int connection, int stop)
{
    pollfd ends[] = {{connection, 0, 0}, {stop, POLLIN, 0}}; // of the connection, only its end
    while (ends[0].revents == 0 && ends[1].revents == 0)
        poll(ends, std::size(ends), -1);
    if (ends[1].revents != 0)
        return;
    constexpr std::string_view line = "The X server has gone; what was taken stays in the working folder.\n";
    [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, line.data(), line.size());
    _exit(EXIT_FAILURE); // without taking down what others still use
}

DisplayWatch::DisplayWatch()
    : m_stop(eventfd(0, EFD_CLOEXEC)), m_thread(endWith, ConnectionNumber(QX11Info::display()), int(m_stop))
{
}

DisplayWatch::~DisplayWatch()
{
    eventfd_write(m_stop, 1);
    m_thread.join();
}
