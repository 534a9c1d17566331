// The frames of one running camera.
#pragma once

#include "tests/plugins/controlfile.h"
#include "tests/plugins/picture.h"

#include <gst/gst.h>

class Producer
{
public:
    virtual ~Producer() = default;
    // Transfer full; nullptr on failure.
    virtual GstBuffer *make(const Moment &moment, const DeviceSettings &device) = 0;

    // nullptr when the format is not known.
    static std::unique_ptr<Producer> ofCamera(const DeviceSettings &device, const GstCaps *fixed);
};
