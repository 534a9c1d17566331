#include "tests/plugins/testdevice.h"
#include "tests/plugins/deviceformats.h"

namespace
{

using Settings = std::shared_ptr<const DeviceSettings>;

struct OrvaneTestDevice {
    GstDevice parent;
    Settings *settings;
};

struct OrvaneTestDeviceClass {
    GstDeviceClass parent;
};

OrvaneTestDevice *self(gpointer object)
{
    return static_cast<OrvaneTestDevice *>(object);
}

} // namespace

G_DEFINE_TYPE(OrvaneTestDevice, orvane_test_device, GST_TYPE_DEVICE)

namespace
{

void finalize(GObject *object)
{
    delete self(object)->settings;
    G_OBJECT_CLASS(orvane_test_device_parent_class)->finalize(object);
}

GstElement *createElement(GstDevice *device, const gchar *name)
{
    const DeviceSettings &settings = settingsOf(device);
    const char *factory = settings.kind == DeviceKind::Camera ? "orvanetestcamera" : "orvanetestmicrophone";
    GstElement *element = gst_element_factory_make(factory, name);
    if (element)
        g_object_set(element, "device", settings.id.c_str(), nullptr);
    return element;
}

// nullptr when the device has none.
GstStructure *properties(const DeviceSettings &settings)
{
    if (!settings.hasProperties)
        return nullptr;
    GstStructure *structure = gst_structure_new_empty("orvane-test-device");
    for (const auto &[name, value] : settings.properties)
        gst_structure_set(structure, name.c_str(), G_TYPE_STRING, value.c_str(), nullptr);
    return structure;
}

} // namespace

static void orvane_test_device_init(OrvaneTestDevice *device)
{
    device->settings = new Settings;
}

static void orvane_test_device_class_init(OrvaneTestDeviceClass *klass)
{
    G_OBJECT_CLASS(klass)->finalize = finalize;
    GST_DEVICE_CLASS(klass)->create_element = createElement;
}

GstDevice *newTestDevice(const Settings &settings)
{
    const bool isCamera = settings->kind == DeviceKind::Camera;
    GstCaps *caps = isCamera ? cameraCaps(*settings) : microphoneCaps(*settings);
    GstStructure *described = properties(*settings);
    auto *device = static_cast<GstDevice *>(g_object_new(
        orvane_test_device_get_type(), "display-name", settings->name.c_str(), "device-class",
        isCamera ? "Video/Source" : "Audio/Source", "caps", caps, "properties", described, nullptr));
    *self(device)->settings = settings;
    gst_caps_unref(caps);
    if (described)
        gst_structure_free(described);
    return device;
}

const DeviceSettings &settingsOf(GstDevice *device)
{
    return **self(device)->settings;
}
