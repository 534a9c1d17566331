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
    Listing(GstDeviceProvider *provider, std::string mark) : provider_(provider), mark_(std::move(mark)) {}
    ~Listing() override
    {
        for (GstDevice *device : devices_)
            gst_object_unref(device);
    }
    Listing(const Listing &) = delete;
    Listing &operator=(const Listing &) = delete;

    static void start(const std::shared_ptr<Listing> &listing)
    {
        const std::lock_guard lock(listing->mutex_);
        listing->update(*ControlWatch::instance().listen(listing));
    }
    // After this the provider hears nothing more.
    void stop()
    {
        const std::lock_guard lock(mutex_);
        provider_ = nullptr;
    }
    void listing(const ControlFile &file) override
    {
        const std::lock_guard lock(mutex_);
        if (provider_)
            update(file);
    }

private:
    void update(const ControlFile &file)
    {
        const auto gone = std::stable_partition(devices_.begin(), devices_.end(), [&file](GstDevice *device) {
            return staysListed(device, file);
        });
        std::for_each(gone, devices_.end(), [this](GstDevice *device) {
            gst_device_provider_device_remove(provider_, device);
            gst_object_unref(device);
        });
        devices_.erase(gone, devices_.end());
        for (const auto &settings : file.devices()) {
            if (settings->provider == mark_ && !isListed(*settings)) {
                devices_.push_back(GST_DEVICE(gst_object_ref_sink(newTestDevice(settings))));
                gst_device_provider_device_add(provider_, devices_.back());
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
        return std::any_of(devices_.begin(), devices_.end(), [&settings](GstDevice *device) {
            return listedAlike(settingsOf(device), settings);
        });
    }

    std::mutex mutex_;
    GstDeviceProvider *provider_; // not owned
    const std::string mark_;
    std::vector<GstDevice *> devices_;
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
