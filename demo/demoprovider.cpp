#include "demo/demoprovider.h"
#include "demo/democamera.h"

namespace
{

struct OrvaneDemoDevice {
    GstDevice parent;
};

struct OrvaneDemoDeviceClass {
    GstDeviceClass parent;
};

struct OrvaneDemoProvider {
    GstDeviceProvider parent;
};

struct OrvaneDemoProviderClass {
    GstDeviceProviderClass parent;
};

constexpr const char *cameraClass = "Video/Source";
constexpr const char *microphoneClass = "Audio/Source";

// A clock's ticking, as quiet as one across the room.
constexpr const char *microphone =
    "audiotestsrc is-live=true wave=ticks freq=2500 volume=0.08 tick-interval=1000000000 "
    "sine-periods-per-tick=12 apply-tick-ramp=true ! "
    "audio/x-raw,format=S16LE,rate=48000,channels=2";

} // namespace

G_DEFINE_TYPE(OrvaneDemoDevice, orvane_demo_device, GST_TYPE_DEVICE)
G_DEFINE_TYPE(OrvaneDemoProvider, orvane_demo_provider, GST_TYPE_DEVICE_PROVIDER)

namespace
{

GstElement *createElement(GstDevice *device, const gchar *name)
{
    if (gst_device_has_classes(device, cameraClass))
        return gst_element_factory_make("orvanedemocamera", name);
    GstElement *bin = gst_parse_bin_from_description(microphone, TRUE, nullptr);
    if (bin && name)
        gst_object_set_name(GST_OBJECT(bin), name);
    return bin;
}

// Floating; takes the caps.
GstDevice *newDevice(const char *name, const char *deviceClass, const char *serial, GstCaps *caps)
{
    GstStructure *properties =
        gst_structure_new("orvane-demo-device", "device.api", G_TYPE_STRING, "orvane-demo", "device.serial",
                          G_TYPE_STRING, serial, nullptr);
    auto *device = static_cast<GstDevice *>(g_object_new(orvane_demo_device_get_type(), "display-name", name,
                                                         "device-class", deviceClass, "caps", caps,
                                                         "properties", properties, nullptr));
    gst_structure_free(properties);
    gst_caps_unref(caps);
    return device;
}

GList *probe(GstDeviceProvider *)
{
    GstCaps *sound =
        gst_caps_from_string("audio/x-raw,format=S16LE,layout=interleaved,rate=48000,channels=2");
    GList *devices = g_list_append(
        nullptr, newDevice("Orvane Demo Camera", cameraClass, "orvane-demo-camera", demoCameraCaps()));
    return g_list_append(
        devices, newDevice("Orvane Demo Microphone", microphoneClass, "orvane-demo-microphone", sound));
}

gboolean start(GstDeviceProvider *provider)
{
    GList *devices = probe(provider);
    for (GList *device = devices; device; device = device->next)
        gst_device_provider_device_add(provider, GST_DEVICE(device->data));
    g_list_free(devices);
    return TRUE;
}

void stop(GstDeviceProvider *) {}

} // namespace

static void orvane_demo_device_init(OrvaneDemoDevice *) {}

static void orvane_demo_device_class_init(OrvaneDemoDeviceClass *klass)
{
    GST_DEVICE_CLASS(klass)->create_element = createElement;
}

static void orvane_demo_provider_init(OrvaneDemoProvider *) {}

static void orvane_demo_provider_class_init(OrvaneDemoProviderClass *klass)
{
    auto *provider = GST_DEVICE_PROVIDER_CLASS(klass);
    provider->probe = probe;
    provider->start = start;
    provider->stop = stop;
    gst_device_provider_class_set_static_metadata(provider, "Demo devices", "Source/Video/Audio",
                                                  "A camera and a microphone for machines without", "Orvane");
}
