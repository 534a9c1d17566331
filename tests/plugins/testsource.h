// What the camera and the microphone element share: a live source tied to one device of the control file.
#pragma once

#include "tests/plugins/devicelink.h"

#include <gst/base/gstpushsrc.h>

struct SourceState {
    std::string device;
    std::shared_ptr<DeviceLink> link = std::make_shared<DeviceLink>();
    // How long a frame takes to come, and how long it may lie before it is lost.
    GstClockTime minLatency = 0;
    GstClockTime maxLatency = 0;
};

struct OrvaneTestSource {
    GstPushSrc parent;
    SourceState *state;
};

struct OrvaneTestSourceClass {
    GstPushSrcClass parent;
    DeviceKind kind;
    // The device's formats, transfer full.
    GstCaps *(*deviceCaps)(const DeviceSettings &device);
};

GType orvane_test_source_get_type();

// Waits for a moment of the monotonic clock; anything but GST_FLOW_OK is for create() to return.
GstFlowReturn waitForMoment(OrvaneTestSource *source, int64_t monotonic);
// Sets time stamp and duration from the moment of capture.
void stampBuffer(OrvaneTestSource *source, GstBuffer *buffer, int64_t captured, GstClockTime duration);
