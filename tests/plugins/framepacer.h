// When frames are due: on whole multiples of the period since the monotonic clock's zero, so that all devices
// agree without knowing of each other.
#pragma once

#include <algorithm>
#include <cstdint>
#include <gst/gst.h>

class FramePacer
{
public:
    // backlog: how many frames the device keeps for a reader that is late; older ones are dropped.
    FramePacer(int rateNumerator, int rateDenominator, int64_t backlog)
        : m_numerator(rateNumerator), m_denominator(rateDenominator), m_backlog(backlog)
    {
    }

    int64_t period() const { return timeOf(1); }
    int64_t timeOf(int64_t frame) const
    {
        return int64_t(
            gst_util_uint64_scale(guint64(frame), guint64(m_denominator) * GST_SECOND, guint64(m_numerator)));
    }

    int64_t oldestKept(int64_t now) const { return newest(now) - m_backlog + 1; }
    // The frame to give next: the one after the last, or the oldest that is still kept, or the first after
    // now.
    int64_t next(int64_t now) const
    {
        return m_last < 0 ? newest(now) + 1 : std::max(m_last + 1, oldestKept(now));
    }
    // Whether frames were dropped before this one.
    bool isGap(int64_t frame) const { return frame != m_last + 1; }
    void given(int64_t frame)
    {
        if (m_last < 0)
            m_first = frame;
        m_last = frame;
    }
    // Counted from the first frame given.
    int64_t number(int64_t frame) const { return frame - (m_last < 0 ? frame : m_first); }

private:
    int64_t newest(int64_t now) const
    {
        return int64_t(
            gst_util_uint64_scale(guint64(now), guint64(m_numerator), guint64(m_denominator) * GST_SECOND));
    }

    int64_t m_numerator;
    int64_t m_denominator;
    int64_t m_backlog;
    int64_t m_first = -1;
    int64_t m_last = -1;
};
