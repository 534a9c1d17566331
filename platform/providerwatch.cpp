#include "platform/providerwatch.h"

#include "platform/capturelog.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>
#include <thread>
#include <utility>

namespace
{

using namespace std::chrono_literals;

constexpr std::chrono::seconds shortestPause = 1s;
constexpr std::chrono::seconds longestPause = 60s;

QString nameOf(GstDeviceProvider *provider)
{
    return QString::fromLatin1(gst_plugin_feature_get_name(gst_device_provider_get_factory(provider)));
}

// Adds to a new listing what only the old one has and is still there.
void keepPresent(const std::vector<CaptureDevice> &old, std::vector<CaptureDevice> *listed)
{
    for (const CaptureDevice &device : old) {
        const bool isListed =
            std::any_of(listed->begin(), listed->end(),
                        [&device](const CaptureDevice &other) { return other.node == device.node; });
        if (!isListed && !device.node.isEmpty() && QFileInfo::exists(device.node))
            listed->push_back(device);
    }
}

} // namespace

ProviderWatch::ProviderWatch(ProviderHandle provider, std::function<bool(const ProviderWatch &)> mayRun,
                             std::function<void()> changed)
    : m_provider(std::move(provider)), m_bus(gst_device_provider_get_bus(m_provider.get())),
      m_name(nameOf(m_provider.get())), m_mayRun(std::move(mayRun)), m_changed(std::move(changed))
{
}

void ProviderWatch::start()
{
    std::thread([this] { run(); }).detach();
}

// The bus is what the thread sleeps on, so a message is what wakes it.
void ProviderWatch::restart()
{
    m_isToRestart = true;
    gst_bus_post(m_bus.get(),
                 gst_message_new_application(nullptr, gst_structure_new_empty("orvane-restart")));
}

bool ProviderWatch::lists(const char *deviceClass) const
{
    return gst_device_provider_factory_has_classes(gst_device_provider_get_factory(m_provider.get()),
                                                   deviceClass);
}

std::vector<CaptureDevice> ProviderWatch::devices(const char *deviceClass) const
{
    std::vector<CaptureDevice> devices;
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::copy_if(m_listed.begin(), m_listed.end(), std::back_inserter(devices),
                 [deviceClass](const CaptureDevice &listed) {
                     return gst_device_has_classes(listed.device.get(), deviceClass);
                 });
    return devices;
}

void ProviderWatch::run()
{
    bool isTold = false;
    for (auto length = shortestPause;;) {
        if (startProvider()) {
            length = shortestPause;
            isTold = false;
            listAll();
            follow();
            continue;
        }
        if (!std::exchange(isTold, true))
            qCInfo(deviceLog).noquote()
                << name() + QStringLiteral(": It does not start; its devices are not listed.");
        setListed({});
        length = pause(length) ? std::min(2 * length, longestPause) : shortestPause;
    }
}

bool ProviderWatch::startProvider()
{
    if (m_isRunning)
        gst_device_provider_stop(m_provider.get());
    m_isToRestart = false;
    // What an earlier start announced is not to be heard any more.
    gst_bus_set_flushing(m_bus.get(), TRUE);
    gst_bus_set_flushing(m_bus.get(), FALSE);
    m_isRunning = m_mayRun(*this) && gst_device_provider_start(m_provider.get());
    return m_isRunning;
}

// Only a new one is looked at: when others go, the process may be at its end, and with it what reads names.
CaptureDevice ProviderWatch::described(GstDevice *device) const
{
    const auto known = std::find_if(m_listed.begin(), m_listed.end(), [device](const CaptureDevice &listed) {
        return listed.device.get() == device;
    });
    return known != m_listed.end() ? *known : describeDevice(device, name());
}

// Devices that are only in use are not found anew by some providers, so those whose node is there stay.
void ProviderWatch::listAll()
{
    std::vector<CaptureDevice> listed;
    GList *devices = gst_device_provider_get_devices(m_provider.get());
    for (GList *link = devices; link; link = link->next)
        listed.push_back(described(GST_DEVICE(link->data)));
    g_list_free_full(devices, gst_object_unref);
    if (!gst_device_provider_can_monitor(m_provider.get()))
        keepPresent(m_listed, &listed);
    setListed(std::move(listed));
}

void ProviderWatch::setListed(std::vector<CaptureDevice> listed)
{
    bool isChange = !listed.empty();
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        isChange = isChange || !m_listed.empty();
        m_listed = std::move(listed);
    }
    if (!m_isFirstListingDone.exchange(true) || isChange)
        m_changed();
}

// False when it is cut short, since the provider is to be started afresh.
bool ProviderWatch::pause(std::chrono::seconds length)
{
    gst_bus_set_flushing(m_bus.get(), FALSE); // which a start that fails leaves it
    const auto end = std::chrono::steady_clock::now() + length;
    for (auto now = std::chrono::steady_clock::now(); now < end; now = std::chrono::steady_clock::now()) {
        if (m_isToRestart)
            return false;
        const MessageHandle message(gst_bus_timed_pop(m_bus.get(), GstClockTime((end - now) / 1ns)));
    }
    return true;
}

// Until it is to be started afresh. Whatever it tells, a device has come, gone or changed: so a sound server
// tells of the new default microphone, and of the one that it no longer is.
void ProviderWatch::follow()
{
    while (!m_isToRestart) {
        const MessageHandle message(gst_bus_timed_pop(m_bus.get(), GST_CLOCK_TIME_NONE));
        if (!m_isToRestart)
            listAll();
    }
}
