// The element orvanedemocamera: a live camera over a desk.
#pragma once

#include <gst/gst.h>

GType orvane_demo_camera_get_type();

// Every mode of the camera. Transfer full.
GstCaps *demoCameraCaps();
