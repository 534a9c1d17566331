#include "tests/plugins/testcoder.h"

#define PACKAGE "orvane"

GST_PLUGIN_DEFINE(GST_VERSION_MAJOR, GST_VERSION_MINOR, orvanecoders, "Hardware's coders for tests",
                  registerTestCoders, ORVANE_VERSION, "MIT/X11", "Orvane", "https://localhost")
