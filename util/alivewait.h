#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <thread>
#include <utility>

// Waiting on the GUI thread for what is done elsewhere, without the windows standing still. While these wait,
// timers tick and queued signals arrive: whoever calls them must be prepared for what those do.

// Waits until isDone() answers true, which is asked again and again; false when it has not by the limit. The
// windows are painted meanwhile. For the first second what the user presses is kept for afterwards; a wait
// that has become so long lets it in.
bool waitAlive(const std::function<bool()> &isDone, std::chrono::milliseconds limit);

// Does the work on a thread of its own and waits for its result: for some milliseconds as if it were done
// here, then as waitAlive() does. Nothing when it has not come by the limit; the work is then left to itself,
// so it must own all that it uses.
template<typename Work>
auto doAside(Work work, std::chrono::milliseconds limit) -> std::optional<decltype(work())>
{
    constexpr std::chrono::milliseconds unnoticed(15);
    using Result = decltype(work());
    auto task = std::make_shared<std::packaged_task<Result()>>(std::move(work));
    std::future<Result> result = task->get_future();
    std::thread([task] { (*task)(); }).detach();
    const auto isReady = [&result] {
        return result.wait_for(std::chrono::milliseconds(0)) == std::future_status::ready;
    };
    if (result.wait_for(unnoticed) != std::future_status::ready && !waitAlive(isReady, limit))
        return {};
    return result.get();
}
