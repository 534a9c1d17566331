// The element orvanetestmicrophone: a microphone of the control file, also for gst-launch-1.0.
#pragma once

#include <gst/gst.h>

GType orvane_test_microphone_get_type();
