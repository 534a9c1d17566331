// The formats of a device as caps.
#pragma once

#include "tests/plugins/controlfile.h"

#include <gst/gst.h>

// From a list such as "YUY2 1920x1080 30;JPEG 640x480 30,15;I420 160x120-1920x1080 5-30". An entry that is
// not understood is warned of and left out. Transfer full.
GstCaps *cameraCaps(const DeviceSettings &camera);
// Transfer full.
GstCaps *microphoneCaps(const DeviceSettings &microphone);
// What any camera may offer, for the pad template. Transfer full.
GstCaps *anyCameraCaps();
