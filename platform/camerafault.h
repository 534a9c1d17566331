#pragma once

#include "platform/captureevents.h"
#include "platform/gsthandles.h"

#include <QString>

// Why a camera's stream did not start or broke off.
struct CameraFailure {
    CameraFault fault = CameraFault::None;
    QString text; // for the log; never empty beside a fault
};

// What an error of a camera's stream means. The debug part, where the system's own error mostly stands, may
// be null.
CameraFault cameraFault(const GError *error, const char *debug);

// The same of an error message, with its words.
CameraFailure cameraFailure(GstMessage *message);

// The fault in a few words: "busy".
QString faultName(CameraFault fault);
