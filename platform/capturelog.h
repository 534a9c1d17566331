#pragma once

#include "platform/gsthandles.h"

#include <QLoggingCategory>

// What went wrong, one line a failure, for whoever is asked why there is no picture or no movie:
// "orvane.camera" and so on.
Q_DECLARE_LOGGING_CATEGORY(cameraLog) // photos too
Q_DECLARE_LOGGING_CATEGORY(movieLog)
Q_DECLARE_LOGGING_CATEGORY(soundLog)
Q_DECLARE_LOGGING_CATEGORY(deviceLog)

// GStreamer's own words for an error on one line, "Device '/dev/video0' is busy. (debug: ...)"; never empty.
// The debug part may be null.
QString errorText(const GError *error, const char *debug);

// The same of an error message.
QString errorText(GstMessage *message);
