#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <utility>

// Waiting on the GUI thread for what is done elsewhere, without the windows standing still. While these wait,
// timers tick and queued signals arrive: whoever calls them must be prepared for what those do.

// What becomes of what the user presses during a wait.
enum class Input {
    KeptAtFirst,   // for the first second it comes afterwards; a wait that has become so long lets it in
    KeptThroughout // all of it comes afterwards
};

constexpr std::chrono::milliseconds noLimit = std::chrono::milliseconds::max();

// Whether one of these waits at this moment, on the GUI thread: what it waits for must not be taken from
// under it.
bool isWaitingAlive();

// Waits until isDone() answers true, which is asked again and again; false when it has not by the limit. The
// windows are painted meanwhile.
bool waitAlive(const std::function<bool()> &isDone, std::chrono::milliseconds limit,
               Input input = Input::KeptAtFirst);

// Does the work on a thread that nothing else is done on meanwhile, and that is left to itself: it must own
// all that it uses. These threads stay for later work, since whoever makes one waits as long as another
// thread loads plug-ins.
void runAside(std::function<void()> work);

// The same with a result.
template<typename Work> auto startAside(Work work) -> std::future<decltype(work())>
{
    using Result = decltype(work());
    auto task = std::make_shared<std::packaged_task<Result()>>(std::move(work));
    std::future<Result> result = task->get_future();
    runAside([task] { (*task)(); });
    return result;
}

template<typename Result> bool isReady(const std::future<Result> &result)
{
    return result.wait_for(std::chrono::milliseconds(0)) == std::future_status::ready;
}

// Does the work as runAside() does and waits for its result: for some milliseconds as if it were done
// here, then as waitAlive() does. Nothing when it has not come by the limit; the work is then left to itself,
// so it must own all that it uses.
template<typename Work>
auto doAside(Work work, std::chrono::milliseconds limit, Input input = Input::KeptAtFirst)
    -> std::optional<decltype(work())>
{
    constexpr std::chrono::milliseconds unnoticed(15);
    auto result = startAside(std::move(work));
    if (result.wait_for(unnoticed) != std::future_status::ready &&
        !waitAlive([&result] { return isReady(result); }, limit, input))
        return {};
    return result.get();
}
