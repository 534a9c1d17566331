// The element orvanetestcamera: a camera of the control file, also for gst-launch-1.0 ("orvanetestcamera
// device=ID").
#pragma once

#include <gst/gst.h>

GType orvane_test_camera_get_type();
