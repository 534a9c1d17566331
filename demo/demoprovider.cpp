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

// A clock's ticking, as quiet as one across the room: a tone of which only the beginning of each second is
// left. (The source's own ticks leave what lies between them as the memory happened to be, in
// GStreamer 1.22.)
constexpr int soundRate = 48000;
constexpr int tickSamples = soundRate / 200;
constexpr const char *microphone = "audiotestsrc name=tone is-live=true wave=sine freq=2500 volume=0.08 ! "
                                   "audio/x-raw,format=S16LE,rate=48000,channels=2";

} // namespace

G_DEFINE_TYPE(OrvaneDemoDevice, orvane_demo_device, GST_TYPE_DEVICE)
G_DEFINE_TYPE(OrvaneDemoProvider, orvane_demo_provider, GST_TYPE_DEVICE_PROVIDER)

namespace
{

GstPadProbeReturn leaveTicks(GstPad *, GstPadProbeInfo *info, gpointer)
{
    GstBuffer *buffer = gst_buffer_make_writable(gst_pad_probe_info_get_buffer(info));
    GST_PAD_PROBE_INFO_DATA(info) = buffer;
    const guint64 first = gst_util_uint64_scale_round(GST_BUFFER_PTS(buffer), soundRate, GST_SECOND);
    GstMapInfo mapped;
    if (!gst_buffer_map(buffer, &mapped, GST_MAP_READWRITE))
        return GST_PAD_PROBE_DROP;
    auto *frames = reinterpret_cast<guint32 *>(mapped.data); // both channels of one sample
    for (gsize i = 0; i < mapped.size / sizeof(*frames); ++i) {
        if ((first + i) % soundRate >= tickSamples)
            frames[i] = 0;
    }
    gst_buffer_unmap(buffer, &mapped);
    return GST_PAD_PROBE_OK;
}

GstElement *createElement(GstDevice *device, const gchar *name)
{
    if (gst_device_has_classes(device, cameraClass))
        return gst_element_factory_make("orvanedemocamera", name);
    GstElement *bin = gst_parse_bin_from_description(microphone, TRUE, nullptr);
    if (!bin)
        return nullptr;
    GstElement *tone = gst_bin_get_by_name(GST_BIN(bin), "tone");
    GstPad *pad = gst_element_get_static_pad(tone, "src");
    gst_pad_add_probe(pad, GST_PAD_PROBE_TYPE_BUFFER, leaveTicks, nullptr, nullptr);
    gst_object_unref(pad);
    gst_object_unref(tone);
    if (name)
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
