#include "tests/plugins/devicelink.h"

#include <chrono>

int64_t monotonicNow()
{
    return static_cast<int64_t>(gst_util_get_timestamp());
}

bool DeviceLink::open(GstElement *owner, DeviceKind kind, const std::string &id)
{
    std::unique_lock lock(mutex_);
    kind_ = kind;
    id_ = id;
    unplugged_ = lossTold_ = false;
    settings_ = ControlWatch::instance().listen(weak_from_this())->find(kind, id);
    present_ = settings_ != nullptr;
    // The owner is set last, so that nothing is told of a device that is not open yet.
    if (!waitForOpening(&lock)) {
        lock.unlock();
        GST_ELEMENT_ERROR(owner, RESOURCE, NOT_FOUND, ("There is no test device \"%s\".", id.c_str()),
                          (nullptr));
        return false;
    }
    if (settings_->fault == Fault::Busy) {
        settings_ = nullptr;
        lock.unlock();
        GST_ELEMENT_ERROR(owner, RESOURCE, BUSY, ("Test device \"%s\" is busy.", id.c_str()), (nullptr));
        return false;
    }
    owner_ = owner;
    return true;
}

bool DeviceLink::waitForOpening(std::unique_lock<std::mutex> *lock)
{
    while (present_ && settings_->fault == Fault::HangOpen)
        changed_.wait(*lock);
    if (!present_)
        settings_ = nullptr;
    return present_;
}

void DeviceLink::close()
{
    std::unique_lock lock(mutex_);
    while (present_ && settings_ && settings_->fault == Fault::HangClose)
        changed_.wait(lock);
    owner_ = nullptr;
    settings_ = nullptr;
}

std::shared_ptr<const DeviceSettings> DeviceLink::settings()
{
    const std::lock_guard lock(mutex_);
    return settings_;
}

DeviceLink::Wait DeviceLink::waitUntil(int64_t monotonic)
{
    const std::chrono::steady_clock::time_point due{std::chrono::nanoseconds(monotonic)};
    std::unique_lock lock(mutex_);
    while (true) {
        if (flushing_)
            return Wait::Flushing;
        if (lossTold_)
            return Wait::Lost;
        if (unplugged_ || settings_->fault == Fault::Stall)
            changed_.wait(lock);
        else if (settings_->fault == Fault::ReadError)
            return Wait::ReadError;
        else if (monotonicNow() >= monotonic)
            return Wait::Due;
        else
            changed_.wait_until(lock, due);
    }
}

void DeviceLink::setFlushing(bool flushing)
{
    const std::lock_guard lock(mutex_);
    flushing_ = flushing;
    changed_.notify_all();
}

void DeviceLink::beforeListing(const ControlFile &file)
{
    {
        const std::lock_guard lock(mutex_);
        const auto now = file.find(kind_, id_);
        present_ = now != nullptr;
        if (present_ && settings_)
            settings_ = now;
        if (!present_ && owner_)
            unplugged_ = true;
        changed_.notify_all();
        if (present_ || !owner_ ||
            (settings_->order != UnplugOrder::ErrorFirst && settings_->order != UnplugOrder::ErrorOnly))
            return;
    }
    tellLoss();
}

void DeviceLink::afterListing(const ControlFile &)
{
    {
        const std::lock_guard lock(mutex_);
        if (!owner_ || !unplugged_ || settings_->order != UnplugOrder::RemovedFirst)
            return;
    }
    tellLoss();
}

void DeviceLink::tellLoss()
{
    GstElement *owner = nullptr;
    std::string name;
    {
        const std::lock_guard lock(mutex_);
        if (!owner_ || lossTold_)
            return;
        owner = GST_ELEMENT(gst_object_ref(owner_));
        name = settings_->name;
    }
    // Without the lock: a bus handler may call back into the source.
    GST_ELEMENT_ERROR(owner, RESOURCE, READ, ("Test device \"%s\" was unplugged.", name.c_str()), (nullptr));
    gst_object_unref(owner);
    const std::lock_guard lock(mutex_);
    lossTold_ = true;
    changed_.notify_all();
}
