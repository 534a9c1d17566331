#include "tests/plugins/devicelink.h"

#include <chrono>

int64_t monotonicNow()
{
    return static_cast<int64_t>(gst_util_get_timestamp());
}

bool DeviceLink::open(GstElement *owner, DeviceKind kind, const std::string &id)
{
    std::unique_lock lock(m_mutex);
    m_kind = kind;
    m_id = id;
    m_unplugged = m_lossTold = false;
    m_settings = ControlWatch::instance().listen(weak_from_this())->find(kind, id);
    m_present = m_settings != nullptr;
    // The owner is set last, so that nothing is told of a device that is not open yet.
    if (!waitForOpening(&lock)) {
        lock.unlock();
        GST_ELEMENT_ERROR(owner, RESOURCE, NOT_FOUND, ("There is no test device \"%s\".", id.c_str()),
                          (nullptr));
        return false;
    }
    if (m_settings->fault == Fault::Busy) {
        m_settings = nullptr;
        lock.unlock();
        GST_ELEMENT_ERROR(owner, RESOURCE, BUSY, ("Test device \"%s\" is busy.", id.c_str()), (nullptr));
        return false;
    }
    m_owner = owner;
    return true;
}

bool DeviceLink::waitForOpening(std::unique_lock<std::mutex> *lock)
{
    while (m_present && m_settings->fault == Fault::HangOpen)
        m_changed.wait(*lock);
    if (!m_present)
        m_settings = nullptr;
    return m_present;
}

void DeviceLink::close()
{
    std::unique_lock lock(m_mutex);
    while (m_present && m_settings && m_settings->fault == Fault::HangClose)
        m_changed.wait(lock);
    m_owner = nullptr;
    m_settings = nullptr;
}

std::shared_ptr<const DeviceSettings> DeviceLink::settings()
{
    const std::lock_guard lock(m_mutex);
    return m_settings;
}

DeviceLink::Wait DeviceLink::waitUntil(int64_t monotonic)
{
    const std::chrono::steady_clock::time_point due{std::chrono::nanoseconds(monotonic)};
    std::unique_lock lock(m_mutex);
    while (true) {
        if (m_flushing)
            return Wait::Flushing;
        if (m_lossTold)
            return Wait::Lost;
        if (m_unplugged || m_settings->fault == Fault::Stall)
            m_changed.wait(lock);
        else if (m_settings->fault == Fault::ReadError)
            return Wait::ReadError;
        else if (monotonicNow() >= monotonic)
            return Wait::Due;
        else
            m_changed.wait_until(lock, due);
    }
}

void DeviceLink::setFlushing(bool flushing)
{
    const std::lock_guard lock(m_mutex);
    m_flushing = flushing;
    m_changed.notify_all();
}

void DeviceLink::beforeListing(const ControlFile &file)
{
    {
        const std::lock_guard lock(m_mutex);
        const auto now = file.find(m_kind, m_id);
        m_present = now != nullptr;
        if (m_present && m_settings)
            m_settings = now;
        if (!m_present && m_owner)
            m_unplugged = true;
        m_changed.notify_all();
        if (m_present || !m_owner ||
            (m_settings->order != UnplugOrder::ErrorFirst && m_settings->order != UnplugOrder::ErrorOnly))
            return;
    }
    tellLoss();
}

void DeviceLink::afterListing(const ControlFile &)
{
    {
        const std::lock_guard lock(m_mutex);
        if (!m_owner || !m_unplugged || m_settings->order != UnplugOrder::RemovedFirst)
            return;
    }
    tellLoss();
}

void DeviceLink::tellLoss()
{
    GstElement *owner = nullptr;
    std::string name;
    {
        const std::lock_guard lock(m_mutex);
        if (!m_owner || m_lossTold)
            return;
        owner = GST_ELEMENT(gst_object_ref(m_owner));
        name = m_settings->name;
    }
    // Without the lock: a bus handler may call back into the source.
    GST_ELEMENT_ERROR(owner, RESOURCE, READ, ("Test device \"%s\" was unplugged.", name.c_str()), (nullptr));
    gst_object_unref(owner);
    const std::lock_guard lock(m_mutex);
    m_lossTold = true;
    m_changed.notify_all();
}
