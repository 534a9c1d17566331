#include "tests/plugins/devicestate.h"

#include <thread>

namespace
{

// As long as the device takes to be opened; one that goes meanwhile is not waited for.
void waitForOpening(const std::string &section, DeviceSettings *device)
{
    const int64_t began = monotonicNow();
    while (look(section, device) &&
           monotonicNow() - began < std::stoll(device->value("opens-after", "0")) * GST_MSECOND)
        std::this_thread::sleep_for(pollPeriod);
}

} // namespace

bool look(const std::string &section, DeviceSettings *device)
{
    const auto file = readControlFile();
    const auto found = file->find(section);
    if (found != file->end())
        *device = found->second;
    return found != file->end();
}

bool openDevice(GstElement *source, const std::string &section, DeviceSettings *device)
{
    waitWhileFaultIs(section, device, "hang-open");
    waitForOpening(section, device);
    const bool isThere = look(section, device);
    const std::string fault = device->value("fault");
    if (!isThere)
        GST_ELEMENT_ERROR(source, RESOURCE, NOT_FOUND, ("Cannot identify device '/dev/video0'."),
                          ("system error: No such file or directory"));
    else if (fault == "busy")
        GST_ELEMENT_ERROR(source, RESOURCE, BUSY, ("Device '/dev/video0' is busy"),
                          ("Call to S_FMT failed for YUYV @ 640x480: Device or resource busy"));
    else if (fault == "no-permission")
        GST_ELEMENT_ERROR(source, RESOURCE, OPEN_READ_WRITE,
                          ("Could not open device '/dev/video0' for reading and writing."),
                          ("system error: Permission denied"));
    else
        return true;
    return false;
}

void waitWhileFaultIs(const std::string &section, DeviceSettings *device, const char *fault)
{
    while (look(section, device) && device->value("fault") == fault)
        std::this_thread::sleep_for(pollPeriod);
}

bool isLossDue(const DeviceSettings &device, int64_t goneSince)
{
    const std::string order = device.value("order", "error-first");
    if (order == "removed-first")
        return monotonicNow() > goneSince + tellingGap;
    return order != "removed-only";
}

void tellReadError(GstElement *source, bool hasGone)
{
    GST_ELEMENT_ERROR(source, RESOURCE, READ, ("Could not read from resource."),
                      ("poll error 1: %s", hasGone ? "No such device (19)" : "Input/output error (5)"));
}
