#pragma once

#include "platform/capturedframe.h"

#include <chrono>
#include <condition_variable>
#include <mutex>

// The latest frame of a camera, handed from the thread that grabs it to whoever needs a picture.
class NewestFrame
{
public:
    void put(FramePtr frame)
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_frame = std::move(frame);
        }
        m_arrived.notify_all();
    }

    // The latest frame; null before the first.
    FramePtr get() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_frame;
    }

    // Tries this frame, which may be damaged, and then each newer one, until one is good or a second has
    // passed.
    template<typename IsGood> void tryFrom(FramePtr frame, IsGood isGood) const
    {
        const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(1);
        while (frame && !isGood(frame))
            frame = waitForOther(frame, limit);
    }

private:
    // Null when none came until the limit.
    FramePtr waitForOther(const FramePtr &known, std::chrono::steady_clock::time_point limit) const
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        const bool came = m_arrived.wait_until(lock, limit, [&] { return m_frame && m_frame != known; });
        return came ? m_frame : FramePtr();
    }

    mutable std::mutex m_mutex;
    mutable std::condition_variable m_arrived;
    FramePtr m_frame;
};
