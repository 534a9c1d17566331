#pragma once

#include <QByteArray>
#include <QStringList>

// Which of GStreamer's elements this program works with, and whether they are installed.
namespace RequiredElements
{

// What is missing, one readable line each, with the Debian package that brings it; empty when all is there.
// GStreamer must have been started.
QStringList missing();

// The installed element for each task; empty when none is.
QByteArray h264Decoder();
QByteArray aacEncoder();

} // namespace RequiredElements
