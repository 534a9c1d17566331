#include "app/terminationsignals.h"

#include <QSocketNotifier>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace
{

constexpr int handledSignals[] = {SIGTERM, SIGINT, SIGHUP};

std::atomic<int> wakeUpPipe{-1};

// Nothing but a write is safe in here; a full pipe is fine, as one byte in it is enough.
void wakeUp(int)
{
    const int savedErrno = errno;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(wakeUpPipe, &byte, 1);
    errno = savedErrno;
}

void handleWith(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (int number : handledSignals)
        sigaction(number, &action, nullptr);
}

} // namespace

TerminationSignals::TerminationSignals(QObject *parent) : QObject(parent)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return; // the signals then do what they did
    m_readEnd = ends[0];
    m_writeEnd = ends[1];
    auto *notifier = new QSocketNotifier(m_readEnd, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &TerminationSignals::drain);
    wakeUpPipe = m_writeEnd;
    handleWith(wakeUp);
}

TerminationSignals::~TerminationSignals()
{
    if (m_readEnd < 0)
        return;
    handleWith(SIG_DFL);
    wakeUpPipe = -1;
    close(m_readEnd);
    close(m_writeEnd);
}

void TerminationSignals::drain()
{
    char bytes[16];
    while (read(m_readEnd, bytes, sizeof bytes) > 0) {
    }
    emit requested();
}
