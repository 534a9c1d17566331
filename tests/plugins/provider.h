// Two providers, as a machine has them where the kernel and a sound and picture server tell of the same
// device.
#pragma once

#include <gst/gst.h>

GType orvane_test_provider_a_get_type();
GType orvane_test_provider_b_get_type();
