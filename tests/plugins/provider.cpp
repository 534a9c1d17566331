#include "tests/plugins/provider.h"
#include "tests/plugins/controlwatch.h"
#include "tests/plugins/testdevice.h"

#include <algorithm>

namespace
{

// The devices of one started provider.
class Listing : public ControlListener
{
public:
    Listing(GstDeviceProvider *provider, std::string mark) : m_provider(provider), m_mark(std::move(mark)) {}
    ~Listing() override
    {
        for (GstDevice *device : m_devices)
            gst_object_unref(device);
    }
    Listing(const Listing &) = delete;
    Listing &operator=(const Listing &) = delete;

    static void start(const std::shared_ptr<Listing> &listing)
    {
        const std::lock_guard lock(listing->m_mutex);
        listing->update(*ControlWatch::instance().listen(listing));
    }
    // After this the provider hears nothing more.
    void stop()
    {
        const std::lock_guard lock(m_mutex);
        m_provider = nullptr;
    }
    void listing(const ControlFile &file) override
    {
        const std::lock_guard lock(m_mutex);
        if (m_provider)
            update(file);
    }

private:
    void update(const ControlFile &file)
    {
        const auto gone =
            std::stable_partition(m_devices.begin(), m_devices.end(),
                                  [&file](GstDevice *device) { return staysListed(device, file); });
        std::for_each(gone, m_devices.end(), [this](GstDevice *device) {
            gst_device_provider_device_remove(m_provider, device);
            gst_object_unref(device);
        });
        m_devices.erase(gone, m_devices.end());
        for (const auto &settings : file.devices()) {
            if (settings->provider == m_mark && !isListed(*settings)) {
                m_devices.push_back(GST_DEVICE(gst_object_ref_sink(newTestDevice(settings))));
                gst_device_provider_device_add(m_provider, m_devices.back());
            }
        }
    }
    static bool staysListed(GstDevice *device, const ControlFile &file)
    {
        const DeviceSettings &listed = settingsOf(device);
        const auto now = file.find(listed.kind, listed.id);
        return now ? listedAlike(*now, listed) : listed.order == UnplugOrder::ErrorOnly;
    }
    bool isListed(const DeviceSettings &settings) const
    {
        return std::any_of(m_devices.begin(), m_devices.end(), [&settings](GstDevice *device) {
            return listedAlike(settingsOf(device), settings);
        });
    }

    std::mutex m_mutex;
    GstDeviceProvider *m_provider; // not owned
    const std::string m_mark;
    std::vector<GstDevice *> m_devices;
};

struct OrvaneTestProvider {
    GstDeviceProvider parent;
    std::shared_ptr<Listing> *listing;
};

struct OrvaneTestProviderClass {
    GstDeviceProviderClass parent;
    const char *mark;
};

using OrvaneTestProviderA = OrvaneTestProvider;
using OrvaneTestProviderB = OrvaneTestProvider;
using OrvaneTestProviderAClass = OrvaneTestProviderClass;
using OrvaneTestProviderBClass = OrvaneTestProviderClass;

OrvaneTestProvider *self(gpointer object)
{
    return static_cast<OrvaneTestProvider *>(object);
}

const char *markOf(gpointer provider)
{
    return G_TYPE_INSTANCE_GET_CLASS(provider, G_OBJECT_TYPE(provider), OrvaneTestProviderClass)->mark;
}

} // namespace

G_DEFINE_ABSTRACT_TYPE(OrvaneTestProvider, orvane_test_provider, GST_TYPE_DEVICE_PROVIDER)
G_DEFINE_TYPE(OrvaneTestProviderA, orvane_test_provider_a, orvane_test_provider_get_type())
G_DEFINE_TYPE(OrvaneTestProviderB, orvane_test_provider_b, orvane_test_provider_get_type())

namespace
{

void finalize(GObject *object)
{
    delete self(object)->listing;
    G_OBJECT_CLASS(orvane_test_provider_parent_class)->finalize(object);
}

GList *probe(GstDeviceProvider *provider)
{
    GList *devices = nullptr;
    const auto file = ControlFile::read();
    for (const auto &settings : file->devices()) {
        if (settings->provider == markOf(provider))
            devices = g_list_append(devices, newTestDevice(settings));
    }
    return devices;
}

gboolean start(GstDeviceProvider *provider)
{
    *self(provider)->listing = std::make_shared<Listing>(provider, markOf(provider));
    Listing::start(*self(provider)->listing);
    return TRUE;
}

void stop(GstDeviceProvider *provider)
{
    (*self(provider)->listing)->stop();
    self(provider)->listing->reset();
}

} // namespace

static void orvane_test_provider_init(OrvaneTestProvider *provider)
{
    provider->listing = new std::shared_ptr<Listing>;
}

static void orvane_test_provider_class_init(OrvaneTestProviderClass *klass)
{
    G_OBJECT_CLASS(klass)->finalize = finalize;
    auto *provider = GST_DEVICE_PROVIDER_CLASS(klass);
    provider->probe = probe;
    provider->start = start;
    provider->stop = stop;
}

static void orvane_test_provider_a_init(OrvaneTestProviderA *) {}

static void orvane_test_provider_a_class_init(OrvaneTestProviderAClass *klass)
{
    klass->mark = "a";
    gst_device_provider_class_set_static_metadata(GST_DEVICE_PROVIDER_CLASS(klass), "Test devices A",
                                                  "Source/Video/Audio",
                                                  "Cameras and microphones of the control file", "Orvane");
}

static void orvane_test_provider_b_init(OrvaneTestProviderB *) {}

static void orvane_test_provider_b_class_init(OrvaneTestProviderBClass *klass)
{
    klass->mark = "b";
    gst_device_provider_class_set_static_metadata(GST_DEVICE_PROVIDER_CLASS(klass),
                                                  "Test devices B, seen twice", "Video/Audio/Source",
                                                  "Cameras and microphones of the control file", "Orvane");
}
