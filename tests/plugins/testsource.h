// The element "orvanetestsource": a live camera, tied by its property "device" to one section of the control
// file.
#pragma once

#include "tests/plugins/controlfile.h"

#include <gst/gst.h>

GType orvane_test_source_get_type();

// All formats of a device; transfer full.
GstCaps *deviceCaps(const std::string &section, const DeviceSettings &device);
bool isCamera(const std::string &section);
