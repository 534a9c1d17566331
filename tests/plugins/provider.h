// The device providers orvanetestprovidera and orvanetestproviderb. Two, as one camera may be seen through
// two; a device's section says by "provider" which lists it.
#pragma once

#include <gst/gst.h>

GType orvane_test_provider_a_get_type();
GType orvane_test_provider_b_get_type();
