#pragma once

#include "platform/capturedevice.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

// Follows one device provider on a thread of its own, for as long as the process runs: GStreamer has one
// object and one bus for each provider, so a second follower would take the first one's messages.
class ProviderWatch
{
public:
    // `mayRun` is asked, in the watching thread, before the provider is started; it may take its time.
    // `changed` is called from the watching thread after each change of the list.
    ProviderWatch(ProviderHandle provider, std::function<bool(const ProviderWatch &)> mayRun,
                  std::function<void()> changed);

    // Starts the thread. This object must live as long as the process. A provider that does not start is
    // tried again after pauses that grow from a second to a minute.
    void start();
    // Has the provider started afresh: it may not have noticed that its server ended, or it announces nothing
    // by itself. What is listed stays until it has listed again.
    void restart();
    // Whether it is started.
    bool isRunning() const { return m_isRunning; }

    // Whether the provider lists devices of this class of device ("Video/Source", "Audio/Source").
    bool lists(const char *deviceClass) const;

    // Whether the provider has listed its devices once, or has refused to start.
    bool isFirstListingDone() const { return m_isFirstListingDone; }
    // The provider's own.
    QString name() const { return m_name; }

    // The devices of this class, in the order of listing.
    std::vector<CaptureDevice> devices(const char *deviceClass) const;

private:
    void run();
    bool startProvider();
    CaptureDevice described(GstDevice *device) const;
    void listAll();
    void setListed(std::vector<CaptureDevice> listed);
    bool pause(std::chrono::seconds length);
    void follow();

    const ProviderHandle m_provider;
    const BusHandle m_bus;
    const QString m_name;
    const std::function<bool(const ProviderWatch &)> m_mayRun;
    const std::function<void()> m_changed;

    std::atomic<bool> m_isRunning{false};
    std::atomic<bool> m_isToRestart{false};
    std::atomic<bool> m_isFirstListingDone{false};
    mutable std::mutex m_mutex; // guards m_listed
    std::vector<CaptureDevice> m_listed;
};
