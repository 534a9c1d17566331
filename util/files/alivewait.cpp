#include "util/files/alivewait.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QThreadPool>
#include <QTimer>

#include <limits>
#include <utility>

namespace
{

using namespace std::chrono_literals;

constexpr auto lookPeriod = 5ms;
constexpr auto inputIsKept = std::chrono::milliseconds(1s);

int waits = 0;

struct CountedWait {
    CountedWait() { ++waits; }
    ~CountedWait() { --waits; }
};

// Never deleted, and without a limit: what is done there may be asleep in a driver or a disk for ever.
QThreadPool &threads()
{
    static auto *pool = [] {
        auto *made = new QThreadPool;
        made->setMaxThreadCount(std::numeric_limits<int>::max());
        made->setExpiryTimeout(-1);
        return made;
    }();
    return *pool;
}

} // namespace

void runAside(std::function<void()> work)
{
    threads().start(std::move(work));
}

bool isWaitingAlive()
{
    return waits > 0;
}

bool waitAlive(const std::function<bool()> &isDone, std::chrono::milliseconds limit, Input input)
{
    const CountedWait counted;
    const QDeadlineTimer deadline(limit);
    const QDeadlineTimer keeping(input == Input::KeptThroughout ? noLimit : inputIsKept);
    QEventLoop loop;
    QTimer look; // wakes the loop; nothing else may
    look.start(lookPeriod);
    while (!isDone()) {
        if (deadline.hasExpired())
            return false;
        const auto events = keeping.hasExpired() ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents;
        loop.processEvents(events | QEventLoop::WaitForMoreEvents);
    }
    return true;
}
