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
        : numerator_(rateNumerator), denominator_(rateDenominator), backlog_(backlog)
    {
    }

    int64_t period() const { return timeOf(1); }
    int64_t timeOf(int64_t frame) const
    {
        return int64_t(
            gst_util_uint64_scale(guint64(frame), guint64(denominator_) * GST_SECOND, guint64(numerator_)));
    }

    int64_t oldestKept(int64_t now) const { return newest(now) - backlog_ + 1; }
    // The frame to give next: the one after the last, or the oldest that is still kept, or the first after
    // now.
    int64_t next(int64_t now) const
    {
        return last_ < 0 ? newest(now) + 1 : std::max(last_ + 1, oldestKept(now));
    }
    // Whether frames were dropped before this one.
    bool isGap(int64_t frame) const { return frame != last_ + 1; }
    void given(int64_t frame)
    {
        if (last_ < 0)
            first_ = frame;
        last_ = frame;
    }
    // Counted from the first frame given.
    int64_t number(int64_t frame) const { return frame - (last_ < 0 ? frame : first_); }

private:
    int64_t newest(int64_t now) const
    {
        return int64_t(
            gst_util_uint64_scale(guint64(now), guint64(numerator_), guint64(denominator_) * GST_SECOND));
    }

    int64_t numerator_;
    int64_t denominator_;
    int64_t backlog_;
    int64_t first_ = -1;
    int64_t last_ = -1;
};
