#pragma once

#include "platform/capturedevice.h"

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

// Follows one device provider on a thread of its own, for as long as the process runs: GStreamer has one
// object and one bus for each provider, so a second follower would take the first one's messages.
class ProviderWatch
{
public:
    // `changed` is called from the watching thread after each change of the list.
    // The factory, which made the provider, is borrowed.
    ProviderWatch(ProviderHandle provider, GstDeviceProviderFactory *factory, std::function<void()> changed);

    // Starts the thread. This object must live as long as the process.
    void start();
    // Has a provider that announces nothing by itself list its devices afresh.
    void relist();
    // Whether the provider tells of changes by itself.
    bool announcesChanges() const;

    // Whether the provider lists devices of this class of device ("Video/Source", "Audio/Source").
    bool lists(const char *deviceClass) const;

    // Whether the provider has listed its devices once, or has refused to start.
    bool isFirstListingDone() const { return m_isFirstListingDone; }
    // The provider's own.
    QString name() const;

    // The devices of this class, in the order of listing.
    std::vector<CaptureDevice> devices(const char *deviceClass) const;

private:
    void run();
    void listAll();
    CaptureDevice describe(GstDevice *device) const;
    void follow();
    void react(GstMessage *message);
    void add(GstDevice *device);
    void remove(GstDevice *device);
    void replace(GstDevice *device, GstDevice *replaced);

    const ProviderHandle m_provider;
    const BusHandle m_bus;
    const std::unique_ptr<GstDeviceProviderFactory, GstObjectRelease> m_factory;
    const std::function<void()> m_changed;

    std::atomic<bool> m_isFirstListingDone{false};
    mutable std::mutex m_mutex; // guards m_listed
    std::vector<CaptureDevice> m_listed;
};
