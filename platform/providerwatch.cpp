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

constexpr char restartCommand[] = "orvane-restart";

constexpr std::chrono::seconds shortestPause = 1s;
constexpr std::chrono::seconds longestPause = 60s;

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

auto isDevice(GstDevice *device)
{
    return [device](const CaptureDevice &listed) { return listed.device.get() == device; };
}

} // namespace

ProviderWatch::ProviderWatch(ProviderHandle provider, std::function<bool(const ProviderWatch &)> mayRun,
                             std::function<void()> changed)
    : m_provider(std::move(provider)), m_bus(gst_device_provider_get_bus(m_provider.get())),
      m_mayRun(std::move(mayRun)), m_changed(std::move(changed))
{
}

void ProviderWatch::start()
{
    std::thread([this] { run(); }).detach();
}

// The bus is what the thread sleeps on, so a message of our own is what wakes it.
void ProviderWatch::restart()
{
    gst_bus_post(m_bus.get(), gst_message_new_application(nullptr, gst_structure_new_empty(restartCommand)));
}

QString ProviderWatch::name() const
{
    return QString::fromLatin1(
        gst_plugin_feature_get_name(gst_device_provider_get_factory(m_provider.get())));
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
        pause(length);
        length = std::min(2 * length, longestPause);
    }
}

bool ProviderWatch::startProvider()
{
    if (m_isRunning)
        gst_device_provider_stop(m_provider.get());
    // What an earlier start announced is not to be heard any more.
    gst_bus_set_flushing(m_bus.get(), TRUE);
    gst_bus_set_flushing(m_bus.get(), FALSE);
    m_isRunning = m_mayRun(*this) && gst_device_provider_start(m_provider.get());
    return m_isRunning;
}

// Devices that are only in use are not found anew by some providers, so those whose node is there stay.
void ProviderWatch::listAll()
{
    std::vector<CaptureDevice> listed;
    GList *devices = gst_device_provider_get_devices(m_provider.get());
    for (GList *link = devices; link; link = link->next)
        listed.push_back(describeDevice(GST_DEVICE(link->data), name()));
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

void ProviderWatch::pause(std::chrono::seconds length)
{
    const auto end = std::chrono::steady_clock::now() + length;
    for (auto now = std::chrono::steady_clock::now(); now < end; now = std::chrono::steady_clock::now()) {
        const MessageHandle message(gst_bus_timed_pop(m_bus.get(), GstClockTime((end - now) / 1ns)));
        if (message && isRestart(message.get()))
            return;
    }
}

bool ProviderWatch::isRestart(GstMessage *message)
{
    return gst_message_has_name(message, restartCommand);
}

// Until it is to be started afresh.
void ProviderWatch::follow()
{
    for (;;) {
        const MessageHandle message(gst_bus_timed_pop(m_bus.get(), GST_CLOCK_TIME_NONE));
        if (!message)
            continue;
        if (isRestart(message.get()))
            return;
        react(message.get());
    }
}

void ProviderWatch::react(GstMessage *message)
{
    GstDevice *device = nullptr;
    GstDevice *replaced = nullptr;
    switch (GST_MESSAGE_TYPE(message)) {
    case GST_MESSAGE_DEVICE_ADDED:
        gst_message_parse_device_added(message, &device);
        add(device);
        break;
    case GST_MESSAGE_DEVICE_REMOVED:
        gst_message_parse_device_removed(message, &device);
        remove(device);
        break;
    case GST_MESSAGE_DEVICE_CHANGED:
        // So a sound server tells of the new default microphone, and of the one that it no longer is.
        gst_message_parse_device_changed(message, &device, &replaced);
        replace(device, replaced);
        gst_object_unref(replaced);
        break;
    default:
        return;
    }
    gst_object_unref(device);
    m_changed();
}

void ProviderWatch::add(GstDevice *device)
{
    const CaptureDevice described = describeDevice(device, name());
    const std::lock_guard<std::mutex> lock(m_mutex);
    // The first listing can come once more as announcements.
    if (std::none_of(m_listed.begin(), m_listed.end(), isDevice(device)))
        m_listed.push_back(described);
}

void ProviderWatch::remove(GstDevice *device)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_listed.erase(std::remove_if(m_listed.begin(), m_listed.end(), isDevice(device)), m_listed.end());
}

void ProviderWatch::replace(GstDevice *device, GstDevice *replaced)
{
    const CaptureDevice described = describeDevice(device, name());
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::replace_if(m_listed.begin(), m_listed.end(), isDevice(replaced), described);
}
