// The device provider orvanedemoprovider: one camera and one microphone, always there.
#pragma once

#include <gst/gst.h>

GType orvane_demo_provider_get_type();
