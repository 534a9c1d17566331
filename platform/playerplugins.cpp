#include "platform/playerplugins.h"

#include "platform/playermessages.h"

#include <gst/gst.h>

namespace
{

// One of each plug-in, in the order in which Phonon asks for them.
const char *const elements[] = {"alsasink",     "fakesink",     "autoaudiosink", "pulsesink",   "v4l2src",
                                "audioconvert", "volume",       "audioresample", "xvimagesink", "ximagesink",
                                "videoconvert", "videobalance", "playbin",       "qtdemux",     "h264parse",
                                "aacparse",     "avdec_h264",   "deinterlace"};

void loadPlugin(const char *element)
{
    GstElementFactory *factory = gst_element_factory_find(element);
    if (!factory)
        return;
    GstPluginFeature *loaded = gst_plugin_feature_load(GST_PLUGIN_FEATURE(factory));
    if (loaded)
        gst_object_unref(loaded);
    gst_object_unref(factory);
}

// Makes it try what there is for a sound server or device, which loads all that is needed for that.
void lookForSoundDevice()
{
    GstElement *sink = gst_element_factory_make("autoaudiosink", nullptr);
    if (!sink)
        return;
    gst_object_ref_sink(sink);
    gst_element_set_state(sink, GST_STATE_READY);
    gst_element_set_state(sink, GST_STATE_NULL);
    gst_object_unref(sink);
}

} // namespace

void loadPlayerPlugins()
{
    if (!gst_init_check(nullptr, nullptr, nullptr))
        return;
    takeMessagesOffPlayers();
    for (const char *element : elements)
        loadPlugin(element);
    lookForSoundDevice();
}
