#include "util/alivewait.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

namespace
{

using namespace std::chrono_literals;

constexpr auto lookPeriod = 5ms;
constexpr auto inputIsKept = 1s;

} // namespace

bool waitAlive(const std::function<bool()> &isDone, std::chrono::milliseconds limit)
{
    const QDeadlineTimer deadline(limit);
    const QDeadlineTimer keeping(inputIsKept);
    QEventLoop loop;
    QTimer look; // wakes the loop; nothing else may
    look.start(lookPeriod);
    while (!isDone()) {
        if (deadline.hasExpired())
            return false;
        const auto input = keeping.hasExpired() ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents;
        loop.processEvents(input | QEventLoop::WaitForMoreEvents);
    }
    return true;
}
