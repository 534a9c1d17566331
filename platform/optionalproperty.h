#pragma once

#include <gst/gst.h>

// Sets a property, written as on a command line, where the element has it.
inline void setIfPresent(GstElement *element, const char *property, const char *value)
{
    if (g_object_class_find_property(G_OBJECT_GET_CLASS(element), property))
        gst_util_set_object_arg(G_OBJECT(element), property, value);
}
