#pragma once

#include <gst/gst.h>

class QString;

// The elements of a description in the words of gst-launch, linked and as one: a single one as itself,
// several as a bin whose pads are their open ends. To be owned by whoever takes it into a pipeline. Null, and
// the reason in `fault`, when one of them is not to be had.
GstElement *parseElements(const QString &description, QString *fault);
