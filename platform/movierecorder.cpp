#include "platform/movierecorder.h"

#include "util/files/freespace.h"

#include <QFileInfo>

#include <gst/app/gstappsrc.h>

#include <thread>
#include <utility>

namespace
{

using namespace std::chrono_literals;

// Frames that may wait for the encoder; with more of them the end of a movie would take too long.
constexpr guint64 mostWaitingFrames = 10;

// How long a slow disk may take nothing of what is left of a movie before it is given up.
constexpr auto closingLimit = 10s;

// Room for the index and what the encoders hold; with less of it a movie is ended while it still can be.
constexpr qint64 leastFreeBytes = qint64{16} * 1024 * 1024;

// Ends the sound with the next piece of the silence under it. At any other moment the end of a movie that is
// stopped at once might come before the sound's beginning, which would undo it.
GstPadProbeReturn endSound(GstPad *sound, GstPadProbeInfo *, gpointer)
{
    gst_pad_send_event(sound, gst_event_new_eos());
    return GST_PAD_PROBE_REMOVE;
}

} // namespace

std::shared_ptr<MovieRecorder> MovieRecorder::start(const MovieSettings &settings, const CapturedFrame &first,
                                                    const Zoom &zoom)
{
    std::shared_ptr<MovieRecorder> recorder(new MovieRecorder(settings));
    if (!recorder->startPipeline())
        return nullptr;
    // The muxer counts a track's time from its first frame, so that one must stand at the very start or the
    // picture would run ahead of the sound.
    recorder->push(first, zoom, 0);
    return recorder;
}

MovieRecorder::MovieRecorder(const MovieSettings &settings)
    : m_settings(settings), m_movie(buildMoviePipeline(settings))
{
}

MovieRecorder::~MovieRecorder()
{
    if (!m_movie.isComplete())
        return;
    m_microphone.reset();
    gst_element_set_state(m_movie.pipeline.get(), GST_STATE_NULL);
}

bool MovieRecorder::startPipeline()
{
    if (!m_movie.isComplete())
        return false;
    GstElement *pipeline = m_movie.pipeline.get();
    const BusHandle bus(gst_element_get_bus(pipeline));
    gst_bus_set_sync_handler(bus.get(), onMessage, this, nullptr);

    // Time counts from this moment on the clock that the frames' times are of.
    const ClockHandle clock(gst_system_clock_obtain());
    gst_pipeline_use_clock(GST_PIPELINE(pipeline), clock.get());
    gst_element_set_start_time(pipeline, GST_CLOCK_TIME_NONE);
    m_startTime = gst_clock_get_time(clock.get());
    m_startedAt = std::chrono::steady_clock::now();
    gst_element_set_base_time(pipeline, m_startTime);

    if (gst_element_set_state(pipeline, GST_STATE_PLAYING) == GST_STATE_CHANGE_FAILURE)
        return false;
    m_microphone = std::make_unique<MicrophoneBranch>(pipeline, m_movie.mixer, m_settings.microphone.get());
    return true;
}

GstBusSyncReply MovieRecorder::onMessage(GstBus *, GstMessage *message, gpointer self)
{
    static_cast<MovieRecorder *>(self)->note(message);
    gst_message_unref(message);
    return GST_BUS_DROP;
}

void MovieRecorder::note(GstMessage *message)
{
    const bool isError = GST_MESSAGE_TYPE(message) == GST_MESSAGE_ERROR;
    if (!isError && GST_MESSAGE_TYPE(message) != GST_MESSAGE_EOS)
        return;
    // The movie goes on without its microphone.
    if (isError && MicrophoneBranch::isSender(message))
        return;
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (isError && m_state == State::Recording)
        m_state = State::Failed;
    m_isFileComplete = true;
    m_changed.notify_all();
}

void MovieRecorder::take(const FramePtr &frame, const Zoom &zoom)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_state != State::Recording)
            return;
    }
    // A frame of the time before the start, still on its way then.
    if (frame->clockTime < m_startTime || !gst_video_info_is_equal(&frame->info, &m_settings.picture))
        return;
    push(*frame, zoom, frame->clockTime - m_startTime + soundDelay());
}

void MovieRecorder::push(const CapturedFrame &frame, const Zoom &zoom, GstClockTime time)
{
    auto *pictures = GST_APP_SRC(m_movie.pictures);
    if (gst_app_src_get_current_level_buffers(pictures) >= mostWaitingFrames)
        return;
    BufferHandle buffer = shown(frame, zoom);
    if (!buffer)
        return;
    GST_BUFFER_PTS(buffer.get()) = time;
    GST_BUFFER_DTS(buffer.get()) = GST_CLOCK_TIME_NONE;
    GST_BUFFER_DURATION(buffer.get()) = GST_CLOCK_TIME_NONE;
    gst_app_src_push_buffer(pictures, buffer.release());
    paceIndex(m_movie);
}

// The part of the frame that the zoom shows, at the frame's size. Without zoom it shares the frame's pixels.
BufferHandle MovieRecorder::shown(const CapturedFrame &frame, const Zoom &zoom)
{
    if (zoom.isNone())
        return BufferHandle(gst_buffer_copy(frame.picture.get()));
    const QSize size(GST_VIDEO_INFO_WIDTH(&frame.info), GST_VIDEO_INFO_HEIGHT(&frame.info));
    BufferHandle buffer(gst_buffer_new_allocate(nullptr, GST_VIDEO_INFO_SIZE(&frame.info), nullptr));
    if (!buffer ||
        !m_zoomer.convert(frame.info, frame.picture.get(), zoom.shownPart(size), frame.info, buffer.get()))
        return {};
    return buffer;
}

bool MovieRecorder::mustEnd() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_state != State::Recording)
        return true;
    const auto length = std::chrono::steady_clock::now() - m_startedAt;
    return length > std::chrono::seconds(longestMovieSeconds()) ||
           freeBytes(QFileInfo(m_settings.path).path()).value_or(0) < leastFreeBytes + waitingBytes(m_movie);
}

bool MovieRecorder::finish(std::chrono::milliseconds wait)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    if (m_state == State::Recording || m_state == State::Failed) {
        m_state = State::Finishing;
        // What follows can wait for the disk, or for a driver, so it never runs in the caller's thread.
        std::thread([self = shared_from_this()] { self->close(); }).detach();
    }
    return m_changed.wait_for(lock, wait, [this] { return m_state == State::Finished; });
}

void MovieRecorder::close()
{
    endStreams();
    waitForFile();
    m_microphone.reset();
    gst_element_set_state(m_movie.pipeline.get(), GST_STATE_NULL);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_state = State::Finished;
    m_changed.notify_all();
}

// As long as the disk takes something.
void MovieRecorder::waitForFile()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    qint64 before = 0;
    qint64 waiting = waitingBytes(m_movie);
    do {
        if (m_changed.wait_for(lock, closingLimit, [this] { return m_isFileComplete; }))
            return;
        before = std::exchange(waiting, waitingBytes(m_movie));
    } while (waiting < before);
}

void MovieRecorder::endStreams()
{
    gst_app_src_end_of_stream(GST_APP_SRC(m_movie.pictures));
    // Behind the mixer: in front of it the end would wait for a microphone that may have stopped giving
    // sound.
    const PadHandle sound(gst_element_get_static_pad(m_movie.soundEncoder, "sink"));
    gst_pad_add_probe(sound.get(), GST_PAD_PROBE_TYPE_BUFFER, endSound, nullptr, nullptr);
}
