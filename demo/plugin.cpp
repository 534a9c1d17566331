#include "demo/democamera.h"
#include "demo/demoprovider.h"

#define PACKAGE "orvane"

namespace
{

gboolean registerAll(GstPlugin *plugin)
{
    return gst_element_register(plugin, "orvanedemocamera", GST_RANK_NONE, orvane_demo_camera_get_type()) &&
           gst_device_provider_register(plugin, "orvanedemoprovider", GST_RANK_PRIMARY,
                                        orvane_demo_provider_get_type());
}

} // namespace

GST_PLUGIN_DEFINE(GST_VERSION_MAJOR, GST_VERSION_MINOR, orvanedemo,
                  "A camera and a microphone for machines without", registerAll, ORVANE_VERSION, "MIT/X11",
                  "Orvane", "https://localhost")
