// What cameras and microphones of the control file have in common.
#pragma once

#include "tests/plugins/controlfile.h"

#include <gst/gst.h>

// Looks at its section anew; what is not there any more stays as last seen. False when it is not there.
bool look(const std::string &section, DeviceSettings *device);

// Opens it as long as that takes, in the words of the usual camera source. False when it cannot be opened.
bool openDevice(GstElement *source, const std::string &section, DeviceSettings *device);
void waitWhileFaultIs(const std::string &section, DeviceSettings *device, const char *fault);

// Whether the stream tells by now that a device that has gone since that moment has.
bool isLossDue(const DeviceSettings &device, int64_t goneSince);
void tellReadError(GstElement *source, bool hasGone);

// CLOCK_MONOTONIC, nanoseconds.
inline int64_t monotonicNow()
{
    return int64_t(gst_util_get_timestamp());
}
