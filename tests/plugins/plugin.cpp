#include "tests/plugins/provider.h"
#include "tests/plugins/testmicrophone.h"
#include "tests/plugins/testsource.h"

#define PACKAGE "orvane"

static gboolean registerAll(GstPlugin *plugin)
{
    return gst_element_register(plugin, "orvanetestsource", GST_RANK_NONE, orvane_test_source_get_type()) &&
           gst_element_register(plugin, "orvanetestmicrophone", GST_RANK_NONE,
                                orvane_test_microphone_get_type()) &&
           gst_device_provider_register(plugin, "orvanetestprovidera", GST_RANK_PRIMARY,
                                        orvane_test_provider_a_get_type()) &&
           gst_device_provider_register(plugin, "orvanetestproviderb", GST_RANK_PRIMARY,
                                        orvane_test_provider_b_get_type());
}

GST_PLUGIN_DEFINE(GST_VERSION_MAJOR, GST_VERSION_MINOR, orvanetest, "Cameras and microphones for tests",
                  registerAll, ORVANE_VERSION, "MIT/X11", "Orvane", "https://localhost")
