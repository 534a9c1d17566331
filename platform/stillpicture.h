#pragma once

#include "platform/newestframe.h"
#include "platform/zoom.h"

#include <QString>

#include <chrono>

// Saves the newest frame, or the next that is whole, as a PNG file of the camera's full size. With zoom it is
// the shown part, scaled smoothly to that size. Waits for a frame as long as told; when none of that time
// is whole the last is taken. False when none came or the file cannot be written; no file is left then.
bool saveStill(const NewestFrame &frames, const Zoom &zoom, const QString &path,
               std::chrono::milliseconds wait);
