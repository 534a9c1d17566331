#include "util/files/alivewait.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

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

} // namespace

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
