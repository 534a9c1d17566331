// A device as the providers list it.
#pragma once

#include "tests/plugins/controlfile.h"

#include <gst/gst.h>

// Floating.
GstDevice *newTestDevice(const std::shared_ptr<const DeviceSettings> &settings);
const DeviceSettings &settingsOf(GstDevice *device);
