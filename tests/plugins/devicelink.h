// A source's tie to its device in the control file: opening and closing it, waiting for its next frame,
// losing it.
#pragma once

#include "tests/plugins/controlwatch.h"

#include <gst/gst.h>

// CLOCK_MONOTONIC in nanoseconds, the time that all test devices share.
int64_t monotonicNow();

class DeviceLink : public ControlListener, public std::enable_shared_from_this<DeviceLink>
{
public:
    enum class Wait { Due, Flushing, ReadError, Lost };

    // From NULL to READY. Blocks while the device hangs; false after an error message of the owner when the
    // device is busy or not there. The owner must close() before it goes.
    bool open(GstElement *owner, DeviceKind kind, const std::string &id);
    // From READY to NULL. Blocks while the device hangs.
    void close();

    // The open device as the control file tells it now; nullptr while closed.
    std::shared_ptr<const DeviceSettings> settings();

    // Until that time, or until there is something else to say. Lost means that the error was posted already.
    Wait waitUntil(int64_t monotonic);
    void setFlushing(bool flushing);

    void beforeListing(const ControlFile &file) override;
    void afterListing(const ControlFile &file) override;

private:
    bool waitForOpening(std::unique_lock<std::mutex> *lock);
    void tellLoss();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    GstElement *m_owner = nullptr; // not owned
    DeviceKind m_kind = DeviceKind::Camera;
    std::string m_id;
    std::shared_ptr<const DeviceSettings> m_settings;
    bool m_present = false;
    bool m_unplugged = false; // stays, whatever is plugged in later, until it is opened anew
    bool m_lossTold = false;
    bool m_flushing = false;
};
