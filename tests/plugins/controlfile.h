// What the control file `orvane-test-devices.ini` in $XDG_RUNTIME_DIR says: which cameras and microphones are
// there and how they behave. A missing file means that there are none.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

enum class DeviceKind { Camera, Microphone };

enum class Fault {
    None,
    Stall,     // gives nothing more and tells nothing
    HangOpen,  // NULL to READY blocks while this stands
    HangClose, // READY to NULL blocks while this stands
    Busy,      // opening fails, another program has the device
    ReadError, // the next frame is an error
};

// How the unplugging of a running device is told.
enum class UnplugOrder { ErrorFirst, RemovedFirst, RemovedOnly, ErrorOnly };

// Which JPEG frames are damaged: the first so many, or every so manieth. 0 means none.
struct DamagedFrames {
    unsigned first = 0;
    unsigned every = 0;
};

struct DeviceSettings {
    DeviceKind kind = DeviceKind::Camera;
    std::string id;
    std::string name;
    std::string provider; // "a" or "b"
    std::string formats;  // camera: "YUY2 1920x1080 30;JPEG 640x480 30,15"
    std::string content;  // camera: page, flash, counter, solid or quarters
    std::string sound;    // microphone: beep, tone or silence
    uint32_t colour = 0;  // 0xRRGGBB of the solid picture
    Fault fault = Fault::None;
    UnplugOrder order = UnplugOrder::ErrorFirst;
    DamagedFrames damaged;
    bool hasProperties = true;
    std::map<std::string, std::string> properties;
};

// True when a listing shows both the same way, so that only a running source sees the difference.
bool listedAlike(const DeviceSettings &one, const DeviceSettings &other);

class ControlFile
{
public:
    static std::string path();
    // Never fails: what cannot be read is not there, and an unknown word is warned of and left at its
    // default.
    static std::shared_ptr<const ControlFile> read();

    const std::vector<std::shared_ptr<const DeviceSettings>> &devices() const { return m_devices; }
    // nullptr when there is no such device.
    std::shared_ptr<const DeviceSettings> find(DeviceKind kind, const std::string &id) const;

private:
    std::vector<std::shared_ptr<const DeviceSettings>> m_devices;
};
