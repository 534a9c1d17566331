// The element "orvanetestmicrophone": a microphone with a clock of its own, on the base class of the usual
// sound sources, tied by its property "device" to one section of the control file.
#pragma once

#include <gst/gst.h>

GType orvane_test_microphone_get_type();

constexpr char microphoneCaps[] = "audio/x-raw,format=S16LE,layout=interleaved,rate=48000,channels=[1,2]";
