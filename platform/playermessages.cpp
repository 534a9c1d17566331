#include "platform/playermessages.h"

#include <gst/gst.h>

namespace
{

gboolean forget(GstBus *, GstMessage *, gpointer)
{
    return G_SOURCE_CONTINUE;
}

// The main thread reads the bus from its first message on. Told by whatever thread posts one, and only of
// buses that are listened to by signals, which ours are not.
gboolean readBus(GSignalInvocationHint *, guint, const GValue *values, gpointer)
{
    static const GQuark mark = g_quark_from_static_string("orvane-read-bus");
    auto *bus = static_cast<GstBus *>(g_value_get_object(values));
    if (g_object_replace_qdata(G_OBJECT(bus), mark, nullptr, bus, nullptr, nullptr)) {
        GSource *source = gst_bus_create_watch(bus);
        g_source_set_callback(source, reinterpret_cast<GSourceFunc>(reinterpret_cast<void *>(forget)),
                              nullptr, nullptr);
        g_source_attach(source, nullptr);
        g_source_unref(source);
    }
    return TRUE; // for the next message
}

} // namespace

void takeMessagesOffPlayers()
{
    g_type_class_ref(GST_TYPE_BUS); // which makes the signal
    g_signal_add_emission_hook(g_signal_lookup("sync-message", GST_TYPE_BUS), 0, readBus, nullptr, nullptr);
}
