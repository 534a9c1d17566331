#pragma once

#include "platform/capturedevice.h"

#include <QDeadlineTimer>
#include <QFileSystemWatcher>
#include <QObject>
#include <QThread>
#include <QTimer>

#include <memory>
#include <vector>

class ProviderWatch;

// Knows which cameras and microphones are there at this moment. Each of GStreamer's device providers is
// started and followed on a thread of its own, since a start can block (GStreamer 1.22 starts them in the
// caller's thread): a provider that hangs keeps only its own devices from being listed. One for the process,
// as GStreamer's providers are; it is made at the first use and never ends.
class DeviceWatch : public QObject
{
    Q_OBJECT

public:
    // From any thread. False when GStreamer cannot be used at all; there are no devices then.
    static bool startGStreamer();

    // What the first instance() would else do: starts GStreamer and loads the providers' plug-ins. From any
    // thread.
    static void loadProviders();

    // The first call starts the watching and waits for no device.
    static DeviceWatch &instance();

    // Every camera that is there, each once, in a stable order: known ones keep their place, new ones come
    // last. Waits for nothing.
    std::vector<CaptureDevice> cameras() const;
    // Every microphone that is there, as each provider lists it. Waits for nothing. From any thread.
    std::vector<CaptureDevice> microphones() const;

    // The same once they are listed for the first time, which is waited for with timers and signals going on:
    // up to a second and a half from the start of the watching, later not at all. What is listed after that
    // leads to changed().
    std::vector<CaptureDevice> awaitCameras();
    std::vector<CaptureDevice> awaitMicrophones();

    // Has a camera whose opening hangs count as not there until that thread ends.
    void setAside(const CaptureDevice &camera, QThread *opening);

signals:
    // A device came or went. Emitted from the watching threads.
    void changed();

private:
    DeviceWatch();
    ~DeviceWatch() override;
    void awaitFirstListing(const char *deviceClass);
    std::vector<CaptureDevice> listed(const char *deviceClass) const;
    void addProviders();
    bool mayLookForSoundCards() const;
    bool hasSoundServer() const;
    void watchFolders();
    void lookAtFolders();
    void restartAll(bool (*which)(const ProviderWatch &));

    std::vector<std::unique_ptr<ProviderWatch>> m_providers;
    std::vector<std::shared_ptr<GstDevice>> m_setAside;
    const QDeadlineTimer m_firstListingLimit;
    bool m_isLatenessTold = false;
    QFileSystemWatcher m_folders; // where the kernel shows sound cards, and servers themselves
    QTimer m_settling;
    QString m_soundCards; // as seen last, as the next two
    QString m_servers;
    bool m_hadSoundServer = false;
};
