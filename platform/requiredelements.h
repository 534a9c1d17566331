#pragma once

#include <QStringList>

// Which of GStreamer's elements this program works with, and whether they are installed.
namespace RequiredElements
{

// What is missing, one readable line each, with the Debian package that brings it; empty when all is there.
// GStreamer must have been started.
QStringList missing();

} // namespace RequiredElements
