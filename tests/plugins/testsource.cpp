#include "tests/plugins/testsource.h"

#include <algorithm>

enum { PropDevice = 1 };

G_DEFINE_ABSTRACT_TYPE(OrvaneTestSource, orvane_test_source, GST_TYPE_PUSH_SRC)

namespace
{

OrvaneTestSource *self(gpointer object)
{
    return static_cast<OrvaneTestSource *>(object);
}

OrvaneTestSourceClass *classOf(OrvaneTestSource *source)
{
    return G_TYPE_INSTANCE_GET_CLASS(source, orvane_test_source_get_type(), OrvaneTestSourceClass);
}

void setProperty(GObject *object, guint, const GValue *value, GParamSpec *)
{
    const char *device = g_value_get_string(value);
    self(object)->state->device = device ? device : "";
}

void getProperty(GObject *object, guint, GValue *value, GParamSpec *)
{
    g_value_set_string(value, self(object)->state->device.c_str());
}

void finalize(GObject *object)
{
    delete self(object)->state;
    G_OBJECT_CLASS(orvane_test_source_parent_class)->finalize(object);
}

GstStateChangeReturn changeState(GstElement *element, GstStateChange change)
{
    OrvaneTestSource *source = self(element);
    if (change == GST_STATE_CHANGE_NULL_TO_READY &&
        !source->state->link->open(element, classOf(source)->kind, source->state->device))
        return GST_STATE_CHANGE_FAILURE;
    const GstStateChangeReturn result =
        GST_ELEMENT_CLASS(orvane_test_source_parent_class)->change_state(element, change);
    if (change == GST_STATE_CHANGE_READY_TO_NULL)
        source->state->link->close();
    return result;
}

GstCaps *getCaps(GstBaseSrc *base, GstCaps *filter)
{
    OrvaneTestSource *source = self(base);
    const auto device = source->state->link->settings();
    GstCaps *caps =
        device ? classOf(source)->deviceCaps(*device) : gst_pad_get_pad_template_caps(GST_BASE_SRC_PAD(base));
    if (!filter)
        return caps;
    GstCaps *both = gst_caps_intersect_full(filter, caps, GST_CAPS_INTERSECT_FIRST);
    gst_caps_unref(caps);
    return both;
}

gboolean query(GstBaseSrc *base, GstQuery *query)
{
    if (GST_QUERY_TYPE(query) != GST_QUERY_LATENCY)
        return GST_BASE_SRC_CLASS(orvane_test_source_parent_class)->query(base, query);
    const SourceState *state = self(base)->state;
    gst_query_set_latency(query, TRUE, state->minLatency, state->maxLatency);
    return TRUE;
}

gboolean isSeekable(GstBaseSrc *)
{
    return FALSE;
}

gboolean unlock(GstBaseSrc *base)
{
    self(base)->state->link->setFlushing(true);
    return TRUE;
}

gboolean unlockStop(GstBaseSrc *base)
{
    self(base)->state->link->setFlushing(false);
    return TRUE;
}

} // namespace

static void orvane_test_source_init(OrvaneTestSource *source)
{
    source->state = new SourceState;
    gst_base_src_set_live(GST_BASE_SRC(source), TRUE);
    gst_base_src_set_format(GST_BASE_SRC(source), GST_FORMAT_TIME);
}

static void orvane_test_source_class_init(OrvaneTestSourceClass *klass)
{
    auto *object = G_OBJECT_CLASS(klass);
    object->set_property = setProperty;
    object->get_property = getProperty;
    object->finalize = finalize;
    g_object_class_install_property(
        object, PropDevice,
        g_param_spec_string("device", "Device", "Name of the device's section in the control file", "",
                            GParamFlags(G_PARAM_READWRITE | G_PARAM_STATIC_STRINGS)));
    GST_ELEMENT_CLASS(klass)->change_state = changeState;
    auto *base = GST_BASE_SRC_CLASS(klass);
    base->get_caps = getCaps;
    base->query = query;
    base->is_seekable = isSeekable;
    base->unlock = unlock;
    base->unlock_stop = unlockStop;
}

GstFlowReturn waitForMoment(OrvaneTestSource *source, int64_t monotonic)
{
    switch (source->state->link->waitUntil(monotonic)) {
    case DeviceLink::Wait::Due:
        return GST_FLOW_OK;
    case DeviceLink::Wait::Flushing:
        return GST_FLOW_FLUSHING;
    case DeviceLink::Wait::ReadError:
        GST_ELEMENT_ERROR(source, RESOURCE, READ,
                          ("Test device \"%s\" cannot be read.", source->state->device.c_str()), (nullptr));
        break;
    case DeviceLink::Wait::Lost:
        break;
    }
    return GST_FLOW_ERROR;
}

void stampBuffer(OrvaneTestSource *source, GstBuffer *buffer, int64_t captured, GstClockTime duration)
{
    GstClock *clock = gst_element_get_clock(GST_ELEMENT(source));
    if (clock) {
        GstClock *systemClock = gst_system_clock_obtain();
        // Another clock's time of the capture is its time now, less how long the capture is past.
        const GstClockTimeDiff time =
            clock == systemClock ? captured
                                 : GstClockTimeDiff(gst_clock_get_time(clock)) - (monotonicNow() - captured);
        const GstClockTimeDiff running =
            time - GstClockTimeDiff(gst_element_get_base_time(GST_ELEMENT(source)));
        GST_BUFFER_PTS(buffer) = GstClockTime(std::max<GstClockTimeDiff>(running, 0));
        gst_object_unref(systemClock);
        gst_object_unref(clock);
    }
    GST_BUFFER_DURATION(buffer) = duration;
}
