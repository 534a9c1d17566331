#include "tests/plugins/provider.h"
#include "tests/plugins/devicestate.h"
#include "tests/plugins/testsource.h"

#include <algorithm>
#include <iterator>
#include <thread>
#include <vector>

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/inotify.h>
#include <unistd.h>

namespace
{

struct OrvaneTestDevice {
    GstDevice parent;
};

struct OrvaneTestDeviceClass {
    GstDeviceClass parent;
};

constexpr const char *sectionKey = "orvane-section";

} // namespace

G_DEFINE_TYPE(OrvaneTestDevice, orvane_test_device, GST_TYPE_DEVICE)

static void orvane_test_device_init(OrvaneTestDevice *) {}

static void orvane_test_device_class_init(OrvaneTestDeviceClass *klass)
{
    GST_DEVICE_CLASS(klass)->create_element = [](GstDevice *device, const gchar *name) {
        const auto *section = static_cast<const char *>(g_object_get_data(G_OBJECT(device), sectionKey));
        GstElement *element =
            gst_element_factory_make(isCamera(section) ? "orvanetestsource" : "orvanetestmicrophone", name);
        g_object_set(element, "device", section, nullptr);
        return element;
    };
}

namespace
{

// Floating.
GstDevice *newDevice(const std::string &section, const DeviceSettings &settings)
{
    const std::string prefix = "prop.";
    GstStructure *properties = nullptr;
    for (const auto &[key, value] : settings.values) {
        if (key.rfind(prefix, 0) != 0)
            continue;
        if (!properties)
            properties = gst_structure_new_empty("orvane-test-device");
        gst_structure_set(properties, key.substr(prefix.size()).c_str(), G_TYPE_STRING, value.c_str(),
                          nullptr);
    }
    GstCaps *caps = deviceCaps(section, settings);
    auto *device = static_cast<GstDevice *>(
        g_object_new(orvane_test_device_get_type(), "display-name", settings.value("name", section).c_str(),
                     "device-class", isCamera(section) ? "Video/Source" : "Audio/Source", "caps", caps,
                     "properties", properties, nullptr));
    g_object_set_data_full(G_OBJECT(device), sectionKey, g_strdup(section.c_str()), g_free);
    gst_caps_unref(caps);
    if (properties)
        gst_structure_free(properties);
    return device;
}

bool isOf(const std::string &section, const DeviceSettings &settings, const std::string &mark)
{
    return section.rfind("provider ", 0) != 0 && settings.value("provider", "a") == mark;
}

std::string faultOf(const std::string &mark)
{
    DeviceSettings provider;
    look("provider " + mark, &provider);
    return provider.value("fault");
}

// Follows the control file while a provider is started.
class Listing
{
public:
    explicit Listing(GstDeviceProvider *provider, std::string mark)
        : m_provider(provider), m_mark(std::move(mark))
    {
        // The control file is replaced in it, and taken away.
        inotify_add_watch(m_changes, g_get_user_runtime_dir(), IN_MOVED_TO | IN_CLOSE_WRITE | IN_DELETE);
        update();
        m_thread = std::thread([this] {
            while (waitForChange())
                update();
        });
    }
    ~Listing()
    {
        eventfd_write(m_end, 1);
        m_thread.join();
        close(m_changes);
        close(m_end);
        for (const Listed &listed : m_listed)
            gst_object_unref(listed.device);
    }
    Listing(const Listing &) = delete;
    Listing &operator=(const Listing &) = delete;

private:
    struct Listed {
        std::string section;
        DeviceSettings settings;
        GstDevice *device; // owned
        int64_t goneSince = 0;
    };

    // As other providers do it: one that looked every few milliseconds would be felt in what is measured.
    // False at the end.
    bool waitForChange() const
    {
        const bool isAnyGoing = std::any_of(m_listed.begin(), m_listed.end(),
                                            [](const Listed &listed) { return listed.goneSince != 0; });
        pollfd changes[] = {{m_changes, POLLIN, 0}, {m_end, POLLIN, 0}};
        poll(changes, std::size(changes), isAnyGoing ? int(pollPeriod.count()) : -1);
        char events[4096];
        while (read(m_changes, events, sizeof events) > 0)
            continue;
        return changes[1].revents == 0;
    }
    void update()
    {
        const auto file = readControlFile();
        if (faultOf(m_mark) == "dead")
            return;
        const auto gone = std::stable_partition(m_listed.begin(), m_listed.end(),
                                                [&](Listed &listed) { return stays(&listed, *file); });
        for (auto listed = gone; listed != m_listed.end(); ++listed) {
            gst_device_provider_device_remove(m_provider, listed->device);
            gst_object_unref(listed->device);
        }
        m_listed.erase(gone, m_listed.end());
        for (const auto &[section, settings] : *file) {
            if (!isOf(section, settings, m_mark) || isListed(section))
                continue;
            auto *device = GST_DEVICE(gst_object_ref_sink(newDevice(section, settings)));
            m_listed.push_back({section, settings, device});
            gst_device_provider_device_add(m_provider, device);
        }
    }
    static bool stays(Listed *listed, const ControlFile &file)
    {
        const auto now = file.find(listed->section);
        if (now != file.end()) {
            listed->goneSince = 0;
            const bool isAlike = now->second.isListedLike(listed->settings);
            if (isAlike)
                listed->settings = now->second;
            return isAlike;
        }
        const auto moment = int64_t(gst_util_get_timestamp());
        if (!listed->goneSince)
            listed->goneSince = moment;
        const std::string order = listed->settings.value("order", "error-first");
        return order == "error-only" || (order == "error-first" && moment < listed->goneSince + tellingGap);
    }
    bool isListed(const std::string &section) const
    {
        return std::any_of(m_listed.begin(), m_listed.end(),
                           [&](const Listed &listed) { return listed.section == section; });
    }

    GstDeviceProvider *m_provider; // not owned
    const std::string m_mark;
    std::vector<Listed> m_listed;
    const int m_changes = inotify_init1(IN_CLOEXEC | IN_NONBLOCK);
    const int m_end = eventfd(0, EFD_CLOEXEC);
    std::thread m_thread;
};

struct OrvaneTestProviderA {
    GstDeviceProvider parent;
    Listing *listing;
};

struct OrvaneTestProviderAClass {
    GstDeviceProviderClass parent;
    const char *mark;
};

using OrvaneTestProviderB = OrvaneTestProviderA;
using OrvaneTestProviderBClass = OrvaneTestProviderAClass;

const char *markOf(GstDeviceProvider *provider)
{
    return G_TYPE_INSTANCE_GET_CLASS(provider, G_OBJECT_TYPE(provider), OrvaneTestProviderAClass)->mark;
}

GList *probe(GstDeviceProvider *provider)
{
    GList *devices = nullptr;
    const auto file = readControlFile();
    for (const auto &[section, settings] : *file) {
        if (isOf(section, settings, markOf(provider)))
            devices = g_list_append(devices, newDevice(section, settings));
    }
    return devices;
}

gboolean start(GstDeviceProvider *provider)
{
    if (!faultOf(markOf(provider)).empty())
        return FALSE;
    reinterpret_cast<OrvaneTestProviderA *>(provider)->listing = new Listing(provider, markOf(provider));
    return TRUE;
}

void stop(GstDeviceProvider *provider)
{
    delete reinterpret_cast<OrvaneTestProviderA *>(provider)->listing;
}

} // namespace

G_DEFINE_TYPE(OrvaneTestProviderA, orvane_test_provider_a, GST_TYPE_DEVICE_PROVIDER)
G_DEFINE_TYPE(OrvaneTestProviderB, orvane_test_provider_b, orvane_test_provider_a_get_type())

static void orvane_test_provider_a_init(OrvaneTestProviderA *) {}
static void orvane_test_provider_b_init(OrvaneTestProviderB *) {}

static void orvane_test_provider_a_class_init(OrvaneTestProviderAClass *klass)
{
    klass->mark = "a";
    klass->parent.probe = probe;
    klass->parent.start = start;
    klass->parent.stop = stop;
    gst_device_provider_class_set_static_metadata(&klass->parent, "Test devices", "Source/Video/Audio",
                                                  "Cameras and microphones of the control file", "Orvane");
}

static void orvane_test_provider_b_class_init(OrvaneTestProviderBClass *klass)
{
    klass->mark = "b";
}
