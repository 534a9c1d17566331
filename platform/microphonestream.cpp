#include "platform/microphonestream.h"

#include "platform/capturelog.h"
#include "platform/optionalproperty.h"
#include "platform/parsedelements.h"
#include "platform/soundtrack.h"

#include <gst/app/gstappsink.h>

#include <mutex>

namespace
{

// Frames that a microphone lost, unlike what its stamps tremble.
constexpr GstClockTime leastLoss = 20 * GST_MSECOND;

QString soundElements()
{
    return QStringLiteral("audioconvert ! audioresample ! appsink name=sink sync=false async=false caps=") +
           QLatin1String(soundCaps);
}

} // namespace

// What GStreamer's threads share about one microphone. They may take its opening and its closing in any
// order, and one that was closed must not be opened any more.
struct MicrophoneStream::Microphone {
    MicrophoneState state;
    const GstClockTime start;
    std::mutex openMutex; // guards isClosed, and is held while it is opened or closed
    bool isClosed = false;
    std::mutex trackMutex;             // guards all below
    std::shared_ptr<SoundTrack> track; // null once the stream has ended
    GstClockTime nextStamp = GST_CLOCK_TIME_NONE;

    Microphone(std::shared_ptr<SoundTrack> soundTrack, GstClockTime startTime)
        : start(startTime), track(std::move(soundTrack))
    {
    }

    static Microphone *of(gpointer data) { return static_cast<Microphone *>(data); }

    static void open(GstElement *pipeline, gpointer data)
    {
        Microphone *microphone = of(data);
        const std::lock_guard<std::mutex> lock(microphone->openMutex);
        microphone->state.noteAnswer(!microphone->isClosed &&
                                     gst_element_set_state(pipeline, GST_STATE_PLAYING) !=
                                         GST_STATE_CHANGE_FAILURE);
    }
    static void close(GstElement *pipeline, gpointer data)
    {
        Microphone *microphone = of(data);
        const std::lock_guard<std::mutex> lock(microphone->openMutex);
        microphone->isClosed = true;
        gst_element_set_state(pipeline, GST_STATE_NULL);
    }
    static GstBusSyncReply hear(GstBus *, GstMessage *message, gpointer data)
    {
        if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_ERROR)
            of(data)->state.fail(errorText(message));
        gst_message_unref(message);
        return GST_BUS_DROP;
    }
    // The movie goes on, perhaps with another microphone.
    static void end(GstAppSink *, gpointer data)
    {
        of(data)->state.fail(QStringLiteral("Its sound has ended."));
    }
    static GstFlowReturn take(GstAppSink *sink, gpointer data)
    {
        const GstClockTime arrival = gst_util_get_timestamp();
        if (const SampleHandle sample{gst_app_sink_try_pull_sample(sink, 0)})
            of(data)->add(gst_sample_get_buffer(sample.get()), arrival);
        return GST_FLOW_OK;
    }

    void add(GstBuffer *sound, GstClockTime arrival)
    {
        state.noteSound();
        GstMapInfo mapped;
        if (!gst_buffer_map(sound, &mapped, GST_MAP_READ))
            return;
        {
            const size_t count = mapped.size / (sizeof(float) * soundChannels);
            const std::lock_guard<std::mutex> lock(trackMutex);
            if (track) {
                if (hasLost(sound, count))
                    track->breakOff();
                const double moment = double(GST_CLOCK_DIFF(start, arrival)) / GST_SECOND;
                track->add(reinterpret_cast<const float *>(mapped.data), count, moment);
            }
        }
        gst_buffer_unmap(sound, &mapped);
    }
    // Whether frames are missing before these.
    bool hasLost(GstBuffer *sound, size_t count)
    {
        const GstClockTime stamp = GST_BUFFER_PTS(sound);
        const GstClockTime expected = nextStamp;
        nextStamp = GST_CLOCK_TIME_IS_VALID(stamp)
                        ? stamp + gst_util_uint64_scale(count, GST_SECOND, soundRate)
                        : GST_CLOCK_TIME_NONE;
        return GST_BUFFER_IS_DISCONT(sound) && GST_CLOCK_TIME_IS_VALID(expected) &&
               GST_CLOCK_TIME_IS_VALID(stamp) && stamp > expected + leastLoss;
    }
};

MicrophoneStream::MicrophoneStream(const CaptureDevice &device, std::shared_ptr<SoundTrack> track,
                                   GstClockTime start)
    : m_microphone(std::make_shared<Microphone>(std::move(track), start)),
      m_pipeline(GST_ELEMENT(gst_object_ref_sink(gst_pipeline_new("microphone"))))
{
    // What is called here is called by the pipeline or by what is in it, so the pipeline keeps it.
    g_object_set_data_full(
        G_OBJECT(m_pipeline.get()), "orvane-microphone", new std::shared_ptr<Microphone>(m_microphone),
        [](gpointer shared) { delete static_cast<std::shared_ptr<Microphone> *>(shared); });
    if (build(device))
        gst_element_call_async(m_pipeline.get(), Microphone::open, m_microphone.get(), nullptr);
    else
        m_microphone->state.fail(QStringLiteral("No stream can be put together for it."));
}

bool MicrophoneStream::build(const CaptureDevice &device)
{
    GstElement *source = gst_device_create_element(device.device.get(), nullptr);
    if (!source)
        return false;
    // Of one with a name PipeWire would not take the stream along to another default.
    if (device.isDefault && device.provider == QLatin1String("pulsedeviceprovider"))
        g_object_set(source, "device", nullptr, nullptr);
    auto *bin = GST_BIN(m_pipeline.get());
    gst_bin_add(bin, source);
    // Its stamps shall count its samples and nothing else: the track sees to the clocks.
    setIfPresent(source, "provide-clock", "false");
    setIfPresent(source, "slave-method", "none");
    // Room for a burst of half a second, and for a reader that comes late, in microseconds. It delays
    // nothing.
    setIfPresent(source, "buffer-time", "1000000");
    QString fault;
    GstElement *sound = parseElements(soundElements(), &fault);
    if (!sound) {
        m_microphone->state.fail(fault);
        return false;
    }
    gst_bin_add(bin, sound);
    if (!gst_element_link(source, sound))
        return false;
    GstAppSinkCallbacks callbacks{};
    callbacks.eos = Microphone::end;
    callbacks.new_sample = Microphone::take;
    const ElementHandle sink(gst_bin_get_by_name(bin, "sink"));
    gst_app_sink_set_callbacks(GST_APP_SINK(sink.get()), &callbacks, m_microphone.get(), nullptr);
    const ClockHandle clock(gst_system_clock_obtain());
    gst_pipeline_use_clock(GST_PIPELINE(bin), clock.get());
    const BusHandle bus(gst_element_get_bus(m_pipeline.get()));
    gst_bus_set_sync_handler(bus.get(), Microphone::hear, m_microphone.get(), nullptr);
    return true;
}

MicrophoneStream::~MicrophoneStream()
{
    {
        const std::lock_guard<std::mutex> lock(m_microphone->trackMutex);
        m_microphone->track.reset();
    }
    // GStreamer keeps the pipeline until the call is done.
    gst_element_call_async(m_pipeline.get(), Microphone::close, m_microphone.get(), nullptr);
}

std::shared_ptr<const MicrophoneState> MicrophoneStream::state() const
{
    return {m_microphone, &m_microphone->state};
}
