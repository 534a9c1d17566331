#include "platform/microphonebranch.h"

#include <mutex>

namespace
{

// By this name a message's sender is known, on whatever thread it comes and however early.
constexpr char sourceName[] = "microphone";

GstElement *addTo(GstElement *pipeline, const char *element)
{
    GstElement *made = gst_element_factory_make(element, nullptr);
    if (made)
        gst_bin_add(GST_BIN(pipeline), made);
    return made;
}

} // namespace

// What the opening and the closing of one microphone share: GStreamer's threads may take them in any order,
// and one that was closed must not be opened any more.
struct MicrophoneBranch::Opening {
    std::mutex mutex;
    bool isClosed = false;

    static void open(GstElement *source, gpointer data)
    {
        const auto &opening = *static_cast<std::shared_ptr<Opening> *>(data);
        const std::lock_guard<std::mutex> lock(opening->mutex);
        if (!opening->isClosed)
            gst_element_set_state(source, GST_STATE_PLAYING);
    }
    static void close(GstElement *source, gpointer data)
    {
        const auto &opening = *static_cast<std::shared_ptr<Opening> *>(data);
        const std::lock_guard<std::mutex> lock(opening->mutex);
        opening->isClosed = true;
        gst_element_set_state(source, GST_STATE_NULL);
    }
    static void release(gpointer data) { delete static_cast<std::shared_ptr<Opening> *>(data); }
};

MicrophoneBranch::MicrophoneBranch(GstElement *pipeline, GstElement *mixer, GstDevice *device)
    : m_pipeline(pipeline), m_opening(std::make_unique<std::shared_ptr<Opening>>(std::make_shared<Opening>()))
{
    GstElement *source = gst_device_create_element(device, sourceName);
    if (!source)
        return;
    m_source.reset(GST_ELEMENT(gst_object_ref_sink(source)));
    // The picture's time must not hang on a microphone.
    if (g_object_class_find_property(G_OBJECT_GET_CLASS(source), "provide-clock"))
        g_object_set(source, "provide-clock", FALSE, nullptr);
    // The pipeline's changes of state pass the microphone by: they would wait for its driver.
    gst_element_set_locked_state(source, TRUE);
    gst_bin_add(GST_BIN(pipeline), source);
    gst_element_set_base_time(source, gst_element_get_base_time(pipeline));
    if (connectTo(mixer))
        gst_element_call_async(source, Opening::open, new std::shared_ptr<Opening>(*m_opening),
                               Opening::release);
}

bool MicrophoneBranch::connectTo(GstElement *mixer)
{
    // The queue right behind the source keeps the driver's buffer from running over.
    GstElement *const chain[] = {addTo(m_pipeline, "queue"), addTo(m_pipeline, "audioconvert"),
                                 addTo(m_pipeline, "audioresample")};
    GstElement *last = m_source.get();
    for (GstElement *element : chain) {
        if (!element || !gst_element_link(last, element))
            return false;
        gst_element_sync_state_with_parent(element);
        last = element;
    }
    return gst_element_link(last, mixer);
}

MicrophoneBranch::~MicrophoneBranch()
{
    if (!m_source)
        return;
    gst_bin_remove(GST_BIN(m_pipeline), m_source.get());
    // GStreamer keeps the element until the call is done.
    gst_element_call_async(m_source.get(), Opening::close, m_opening.release(), Opening::release);
}

bool MicrophoneBranch::isSender(GstMessage *message)
{
    // Some providers' microphones are bins whose inner elements speak.
    for (GstObject *sender = GST_MESSAGE_SRC(message); sender; sender = GST_OBJECT_PARENT(sender)) {
        if (g_strcmp0(GST_OBJECT_NAME(sender), sourceName) == 0)
            return true;
    }
    return false;
}
