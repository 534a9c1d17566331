#include "platform/microphonebranch.h"

#include "platform/capturelog.h"

#include <mutex>

namespace
{

// As the log shows it.
constexpr char sourceName[] = "microphone";
// Under this key a source carries its microphone, so that a message's sender is known, on whatever thread it
// comes and however early.
constexpr char microphoneKey[] = "orvane-microphone";

GstElement *addTo(GstElement *pipeline, const char *element)
{
    GstElement *made = gst_element_factory_make(element, nullptr);
    if (made)
        gst_bin_add(GST_BIN(pipeline), made);
    return made;
}

} // namespace

// What GStreamer's threads share about one microphone. They may take its opening and its closing in any
// order, and one that was closed must not be opened any more.
struct MicrophoneBranch::Microphone {
    MicrophoneState state;
    const std::shared_ptr<SoundGaps> gaps;
    std::mutex mutex; // guards isClosed, and is held while it is opened or closed
    bool isClosed = false;

    explicit Microphone(std::shared_ptr<SoundGaps> soundGaps) : gaps(std::move(soundGaps)) {}

    static std::shared_ptr<Microphone> &of(gpointer data)
    {
        return *static_cast<std::shared_ptr<Microphone> *>(data);
    }
    static void release(gpointer data) { delete static_cast<std::shared_ptr<Microphone> *>(data); }

    static void open(GstElement *source, gpointer data)
    {
        const auto &microphone = of(data);
        const std::lock_guard<std::mutex> lock(microphone->mutex);
        microphone->state.noteAnswer(!microphone->isClosed &&
                                     gst_element_set_state(source, GST_STATE_PLAYING) !=
                                         GST_STATE_CHANGE_FAILURE);
    }
    static void close(GstElement *source, gpointer data)
    {
        const auto &microphone = of(data);
        const std::lock_guard<std::mutex> lock(microphone->mutex);
        microphone->isClosed = true;
        gst_element_set_state(source, GST_STATE_NULL);
    }
    static GstPadProbeReturn pass(GstPad *, GstPadProbeInfo *info, gpointer data)
    {
        const auto &microphone = of(data);
        if ((GST_PAD_PROBE_INFO_TYPE(info) & GST_PAD_PROBE_TYPE_EVENT_DOWNSTREAM) == 0) {
            microphone->state.noteSound();
            microphone->gaps->noteSound();
            return GST_PAD_PROBE_OK;
        }
        if (GST_EVENT_TYPE(GST_PAD_PROBE_INFO_EVENT(info)) != GST_EVENT_EOS)
            return GST_PAD_PROBE_OK;
        // The movie goes on, perhaps with another microphone.
        microphone->state.fail(QStringLiteral("Its sound has ended."));
        return GST_PAD_PROBE_DROP;
    }
};

MicrophoneBranch::MicrophoneBranch(GstElement *pipeline, GstElement *mixer, GstDevice *device,
                                   std::shared_ptr<SoundGaps> gaps)
    : m_pipeline(pipeline), m_mixer(mixer), m_microphone(std::make_shared<Microphone>(std::move(gaps))),
      m_closing(std::make_unique<std::shared_ptr<Microphone>>(m_microphone))
{
    GstElement *source = gst_device_create_element(device, sourceName);
    if (!source) {
        m_microphone->state.fail(QStringLiteral("GStreamer has no element for it."));
        return;
    }
    m_source.reset(GST_ELEMENT(gst_object_ref_sink(source)));
    g_object_set_data_full(G_OBJECT(source), microphoneKey, new std::shared_ptr<Microphone>(m_microphone),
                           Microphone::release);
    // The picture's time must not hang on a microphone.
    if (g_object_class_find_property(G_OBJECT_GET_CLASS(source), "provide-clock"))
        g_object_set(source, "provide-clock", FALSE, nullptr);
    // The pipeline's changes of state pass the microphone by: they would wait for its driver.
    gst_element_set_locked_state(source, TRUE);
    gst_bin_add(GST_BIN(pipeline), source);
    gst_element_set_base_time(source, gst_element_get_base_time(pipeline));
    if (connectTo(mixer)) {
        watchSound();
        gst_element_call_async(source, Microphone::open, new std::shared_ptr<Microphone>(m_microphone),
                               Microphone::release);
    } else {
        m_microphone->state.fail(QStringLiteral("Its sound does not fit into the movie."));
    }
}

bool MicrophoneBranch::connectTo(GstElement *mixer)
{
    // The queue right behind the source keeps the driver's buffer from running over.
    m_chain = {addTo(m_pipeline, "queue"), addTo(m_pipeline, "audioconvert"),
               addTo(m_pipeline, "audioresample")};
    GstElement *last = m_source.get();
    for (GstElement *element : m_chain) {
        if (!element || !gst_element_link(last, element))
            return false;
        gst_element_sync_state_with_parent(element);
        last = element;
    }
    return gst_element_link(last, mixer);
}

void MicrophoneBranch::watchSound()
{
    const PadHandle sound(gst_element_get_static_pad(m_chain.front(), "sink"));
    gst_pad_add_probe(sound.get(),
                      GstPadProbeType(GST_PAD_PROBE_TYPE_BUFFER | GST_PAD_PROBE_TYPE_BUFFER_LIST |
                                      GST_PAD_PROBE_TYPE_EVENT_DOWNSTREAM),
                      Microphone::pass, new std::shared_ptr<Microphone>(m_microphone), Microphone::release);
}

MicrophoneBranch::~MicrophoneBranch()
{
    if (!m_source)
        return;
    gst_bin_remove(GST_BIN(m_pipeline), m_source.get());
    // The mixer's pad first: it may be holding up the chain.
    if (m_chain.back()) {
        const PadHandle end(gst_element_get_static_pad(m_chain.back(), "src"));
        const PadHandle mixed(gst_pad_get_peer(end.get()));
        if (mixed)
            gst_element_release_request_pad(m_mixer, mixed.get());
    }
    for (GstElement *element : m_chain) {
        if (!element)
            continue;
        gst_element_set_state(element, GST_STATE_NULL);
        gst_bin_remove(GST_BIN(m_pipeline), element);
    }
    // GStreamer keeps the element until the call is done.
    gst_element_call_async(m_source.get(), Microphone::close, m_closing.release(), Microphone::release);
}

std::shared_ptr<const MicrophoneState> MicrophoneBranch::state() const
{
    return {m_microphone, &m_microphone->state};
}

bool MicrophoneBranch::noteError(GstMessage *message)
{
    // Some providers' microphones are bins whose inner elements speak.
    for (GstObject *sender = GST_MESSAGE_SRC(message); sender; sender = GST_OBJECT_PARENT(sender)) {
        if (gpointer microphone = g_object_get_data(G_OBJECT(sender), microphoneKey)) {
            Microphone::of(microphone)->state.fail(errorText(message));
            return true;
        }
    }
    return false;
}
