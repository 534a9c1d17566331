#pragma once

#include "platform/gsthandles.h"

#include <QString>

// Writes an RGB picture as a PNG file, fast rather than small: a teacher waits for it. The file appears
// whole or not at all. False when the name is taken or the file cannot
// be written; nothing is left then.
bool writePng(const QString &path, const GstVideoInfo &rgb, GstBuffer *picture);
