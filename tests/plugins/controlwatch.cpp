#include "tests/plugins/controlwatch.h"

#include <algorithm>
#include <chrono>
#include <sys/stat.h>
#include <thread>
#include <tuple>

namespace
{

// Short against the three seconds and the half seconds that tests wait for, long against the cost of a
// stat().
constexpr auto pollPeriod = std::chrono::milliseconds(20);

// Writers replace the file, so a change always shows here.
using Stamp = std::tuple<ino_t, off_t, time_t, long>;

Stamp currentStamp()
{
    struct stat status = {};
    if (stat(ControlFile::path().c_str(), &status) != 0)
        return {};
    return {status.st_ino, status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

} // namespace

ControlWatch &ControlWatch::instance()
{
    static auto *const watch = new ControlWatch;
    return *watch;
}

ControlWatch::ControlWatch()
{
    std::thread([this] { watch(); }).detach();
}

std::shared_ptr<const ControlFile> ControlWatch::listen(const std::weak_ptr<ControlListener> &listener)
{
    const std::lock_guard lock(m_mutex);
    const auto same = [&listener](const std::weak_ptr<ControlListener> &other) {
        return !listener.owner_before(other) && !other.owner_before(listener);
    };
    if (std::none_of(m_listeners.begin(), m_listeners.end(), same))
        m_listeners.push_back(listener);
    m_listenerCame.notify_all();
    return ControlFile::read();
}

std::vector<std::shared_ptr<ControlListener>> ControlWatch::waitForListeners()
{
    std::unique_lock lock(m_mutex);
    std::vector<std::shared_ptr<ControlListener>> present;
    while (present.empty()) {
        std::vector<std::weak_ptr<ControlListener>> kept;
        for (const auto &listener : m_listeners) {
            if (auto alive = listener.lock()) {
                present.push_back(std::move(alive));
                kept.push_back(listener);
            }
        }
        m_listeners = std::move(kept);
        if (present.empty())
            m_listenerCame.wait(lock);
    }
    return present;
}

void ControlWatch::watch()
{
    Stamp seen;
    while (true) {
        {
            // In this order: a listener too late for this round has read a file no older than the stamp, so
            // it misses no change, and one in time is told a file no older than its own.
            const Stamp stamp = currentStamp();
            const auto listeners = waitForListeners();
            if (stamp != seen) {
                const auto file = ControlFile::read();
                for (const auto &listener : listeners)
                    listener->beforeListing(*file);
                for (const auto &listener : listeners)
                    listener->listing(*file);
                for (const auto &listener : listeners)
                    listener->afterListing(*file);
                seen = stamp;
            }
        }
        std::this_thread::sleep_for(pollPeriod);
    }
}
