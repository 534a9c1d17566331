// Watches the control file and tells each change to the running sources and the started providers.
#pragma once

#include "tests/plugins/controlfile.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

// Called on the watch's own thread, each step for all listeners before the next one, so that a source can
// tell its loss before or after the providers tell that the device was removed.
class ControlListener
{
public:
    virtual ~ControlListener() = default;
    virtual void beforeListing(const ControlFile &) {}
    virtual void listing(const ControlFile &) {}
    virtual void afterListing(const ControlFile &) {}
};

class ControlWatch
{
public:
    // One for the process. It is never taken down, as GStreamer never unloads a plug-in.
    static ControlWatch &instance();

    // The listener is told every later change until it goes (listening twice is listening once); the file as
    // it is now is returned.
    std::shared_ptr<const ControlFile> listen(const std::weak_ptr<ControlListener> &listener);

private:
    ControlWatch();
    void watch();
    std::vector<std::shared_ptr<ControlListener>> waitForListeners();

    std::mutex m_mutex;
    std::condition_variable m_listenerCame;
    std::vector<std::weak_ptr<ControlListener>> m_listeners;
};
