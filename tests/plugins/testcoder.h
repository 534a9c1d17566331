// Elements with the names of hardware's encoders and decoders of H.264, each tied by its name to one section
// of the control file.
#pragma once

#include <gst/gst.h>

gboolean registerTestCoders(GstPlugin *plugin);
