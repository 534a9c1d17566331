#include "platform/movierecorder.h"

#include "platform/capturelog.h"
#include "platform/movielimits.h"
#include "util/files/freespace.h"

#include <QFileInfo>

#include <gst/app/gstappsrc.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <thread>
#include <utility>

namespace
{

using namespace std::chrono_literals;

// What may wait for the encoder beside a second's worth of frames; with more of them the end of a movie would
// take too long, and a kill take more.
constexpr gsize mostWaitingBytes = gsize(128) << 20;
// Until it first keeps up: a slow machine needs more than a second to load and to start it.
constexpr int startingSeconds = 3;

constexpr auto leastFrameWait = 300ms;

// How long a slow disk may take nothing of what is left of a movie before it is given up.
constexpr auto closingLimit = 10s;

// Room for the index and what the encoders hold; with less of it a movie is ended while it still can be.
constexpr qint64 leastFreeBytes = qint64(16) << 20;

// For so long frames may be left out, and the disk not answer, before the movie is given up.
constexpr auto behindLimit = 5s;
constexpr auto silenceLimit = 10s;

// How often the room on the disk and the microphone are looked at.
constexpr auto watchPeriod = 250ms;

// Why a movie ends with this error.
MovieEnd endOf(GstMessage *message)
{
    const ParsedError parsed(message);
    const bool isFull =
        g_error_matches(parsed.error.get(), GST_RESOURCE_ERROR, GST_RESOURCE_ERROR_NO_SPACE_LEFT) ||
        (parsed.debug && strstr(parsed.debug.get(), g_strerror(EDQUOT)));
    return isFull ? MovieEnd::DiskFull : MovieEnd::Failed;
}

} // namespace

MovieRecorder::MovieRecorder(const MovieSettings &settings)
    : m_settings(settings), m_encoder(h264Encoder(settings.pictureSize())),
      m_folder(QFileInfo(settings.path).path())
{
}

MovieRecorder::~MovieRecorder() = default;

bool MovieRecorder::start(const FramePtr &first)
{
    keepFirst(first);
    MoviePipeline movie = buildMoviePipeline(m_settings, m_encoder);
    {
        const std::lock_guard<std::mutex> lock(m_mutex); // before its threads read it
        m_movie = std::move(movie);
    }
    if (!m_movie.isComplete()) {
        distrust(m_encoder);
        fail(MovieEnd::Failed, m_movie.fault);
        return false;
    }
    tellShortRoom();
    if (!startPipeline()) {
        gst_element_set_state(m_movie.pipeline.get(), GST_STATE_NULL);
        return false;
    }
    return beginRecording();
}

bool MovieRecorder::startPipeline()
{
    GstElement *pipeline = m_movie.pipeline.get();
    const BusHandle bus(gst_element_get_bus(pipeline));
    gst_bus_set_sync_handler(bus.get(), onMessage, this, nullptr);

    m_startedAt = std::chrono::steady_clock::now();
    if (gst_element_set_state(pipeline, GST_STATE_PLAYING) == GST_STATE_CHANGE_FAILURE)
        return false;
    m_sound = std::make_unique<MovieSound>(m_movie.sound.get(), m_startTime, m_settings.microphone);
    return true;
}

// False when the movie was discarded before it had started.
bool MovieRecorder::beginRecording()
{
    bool isWanted = true;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        isWanted = !m_isDiscarded;
        m_state = State::Recording;
        for (const FramePtr &frame : std::exchange(m_kept, {}))
            push(*frame);
    }
    if (isWanted)
        std::thread([self = shared_from_this()] { self->watch(); }).detach();
    else
        finish();
    return isWanted;
}

// A movie at the highest rate that its encoders may take; most need a part of that.
void MovieRecorder::tellShortRoom() const
{
    const std::optional<qint64> room = freeBytes(m_folder);
    const qint64 seconds = room.value_or(0) / mostBytesPerSecond(m_settings);
    if (room && seconds < longestRecordingSeconds)
        qCWarning(movieLog).noquote().nospace()
            << m_settings.path << ": The disk has room for " << seconds << " seconds of the "
            << longestRecordingSeconds << " that a movie may take, at its highest rate.";
}

GstBusSyncReply MovieRecorder::onMessage(GstBus *, GstMessage *message, gpointer self)
{
    static_cast<MovieRecorder *>(self)->note(message);
    gst_message_unref(message);
    return GST_BUS_DROP;
}

bool MovieRecorder::isFromEncoder(GstMessage *message)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return gst_object_has_as_ancestor(GST_MESSAGE_SRC(message), GST_OBJECT(m_movie.pictureEncoder.get()));
}

void MovieRecorder::note(GstMessage *message)
{
    const bool isError = GST_MESSAGE_TYPE(message) == GST_MESSAGE_ERROR;
    if (!isError && GST_MESSAGE_TYPE(message) != GST_MESSAGE_EOS)
        return;
    if (isError) {
        if (isFromEncoder(message))
            distrust(m_encoder);
        fail(endOf(message), errorText(message));
    }
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isFileComplete = true;
    m_changed.notify_all();
}

// The first failure counts; what comes after it follows from it.
void MovieRecorder::fail(MovieEnd why, const QString &line)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_end != MovieEnd::None)
            return;
        m_end = why;
        if (m_state == State::Finishing)
            m_isBreakNews = true;
    }
    qCWarning(movieLog).noquote().nospace() << m_settings.path << ": " << line;
}

std::chrono::milliseconds MovieRecorder::lastFrameLimit() const
{
    return std::max(leastFrameWait, std::chrono::milliseconds(3000 / qMax(1, m_settings.framesPerSecond)));
}

bool MovieRecorder::wants(GstClockTime captured) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return !m_isDiscarded && m_end == MovieEnd::None && !m_hasAllFrames &&
           (m_state != State::Finishing || captured <= m_stopTime);
}

void MovieRecorder::noteLastFrame()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_hasAllFrames = true;
    m_changed.notify_all();
}

void MovieRecorder::take(const FramePtr &frame)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_state == State::Starting) {
            keep(frame);
            m_lastInTime = std::chrono::steady_clock::now();
        }
        if (m_state != State::Recording && (m_state != State::Finishing || m_hasAllFrames))
            return;
    }
    if (!isBehind())
        push(*frame);
    lookForLife();
}

// An encoder or a disk that hangs lets nobody know: what waits for it grows until frames are left out, and
// the look at the disk's room does not come back.
void MovieRecorder::lookForLife()
{
    const auto now = std::chrono::steady_clock::now();
    if (!isBehind())
        m_lastInTime = now;
    const auto lastLook = m_lastLook.load();
    if (now - m_lastInTime > behindLimit) {
        distrust(m_encoder);
        fail(MovieEnd::Failed, QStringLiteral("No more of its pictures are taken."));
    }
    if (lastLook != std::chrono::steady_clock::time_point::min() && now - lastLook > silenceLimit)
        fail(MovieEnd::DiskFull, QStringLiteral("The disk takes no more of the movie."));
}

void MovieRecorder::keep(const FramePtr &frame)
{
    if (m_keptBytes >= mostWaitingBytes || m_kept.size() >= mostWaitingFrames())
        return;
    m_keptBytes += gst_buffer_get_size(frame->picture.get());
    m_kept.push_back(frame);
}

void MovieRecorder::keepFirst(const FramePtr &first)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_kept.empty() || first->clockTime < m_kept.front()->clockTime)
        m_kept.push_front(first);
    m_startTime = m_nextTime = m_kept.front()->clockTime;
}

guint64 MovieRecorder::mostWaitingFrames() const
{
    return guint64(m_settings.framesPerSecond) * (m_hasKeptUp ? 1 : startingSeconds);
}

bool MovieRecorder::isBehind()
{
    auto *pictures = GST_APP_SRC(m_movie.pictures.get());
    const guint64 waiting = gst_app_src_get_current_level_buffers(pictures);
    m_hasKeptUp = m_hasKeptUp || waiting == 0;
    return gst_app_src_get_current_level_bytes(pictures) >= mostWaitingBytes ||
           waiting >= mostWaitingFrames();
}

void MovieRecorder::push(const CapturedFrame &frame)
{
    if (frame.clockTime < m_nextTime || !hasIndexFor(frame.clockTime))
        return;
    m_nextTime = frame.clockTime + 1;
    GstBuffer *picture = frame.picture.get();
    GST_BUFFER_PTS(picture) = frame.clockTime - m_startTime;
    gst_app_src_push_buffer(GST_APP_SRC(m_movie.pictures.get()), gst_buffer_ref(picture));
    paceIndex(m_movie);
}

// A camera may send more frames than it has told, as it does after an interruption. Two seconds' worth of
// them are taken at once, and twice its rate for ever.
bool MovieRecorder::hasIndexFor(GstClockTime time)
{
    const GstClockTime share = GST_SECOND / guint64(2 * m_settings.framesPerSecond);
    const GstClockTime used = qMax(m_indexUsedUpTo, time) + share;
    if (used > time + GST_SECOND)
        return false;
    m_indexUsedUpTo = used;
    return true;
}

bool MovieRecorder::takeBreak()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return std::exchange(m_isBreakNews, false);
}

MovieEnd MovieRecorder::end() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_end;
}

// In a thread of its own, as the disk may keep it waiting.
void MovieRecorder::watch()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_changed.wait_for(lock, watchPeriod,
                               [this] { return m_state != State::Recording || m_end != MovieEnd::None; })) {
        lock.unlock();
        m_lastLook = std::chrono::steady_clock::now();
        m_sound->lookAfter();
        lookAtRoom();
        lock.lock();
    }
}

void MovieRecorder::lookAtRoom()
{
    const auto length = std::chrono::steady_clock::now() - m_startedAt;
    if (length > std::chrono::seconds(longestMovieSeconds()))
        fail(MovieEnd::Failed, QStringLiteral("The movie is as long as its index allows."));
    const std::optional<qint64> room = freeBytes(m_folder);
    if (!room)
        fail(MovieEnd::Failed, QStringLiteral("Its folder is gone."));
    else if (*room < leastFreeBytes + waitingBytes(m_movie))
        fail(MovieEnd::DiskFull, QStringLiteral("The disk is nearly full."));
}

void MovieRecorder::finish()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_state == State::Finishing || m_state == State::Finished)
            return;
        m_state = State::Finishing;
        m_stopTime = gst_util_get_timestamp();
        m_changed.notify_all();
    }
    // What follows can wait for the disk, or for a driver, so it never runs in the caller's thread.
    std::thread([self = shared_from_this()]() { self->close(); }).detach();
}

void MovieRecorder::discard()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isDiscarded = true;
        // One that is being started looks at its end, when the disk lets it.
        if (m_state == State::Starting) {
            m_kept.clear();
            return;
        }
    }
    finish();
}

bool MovieRecorder::isFinished() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_state == State::Finished;
}

bool MovieRecorder::waitForFile(std::chrono::milliseconds limit)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_changed.wait_for(lock, limit, [this] { return m_state == State::Finished; });
}

void MovieRecorder::close()
{
    waitForLastFrames();
    gst_app_src_end_of_stream(GST_APP_SRC(m_movie.pictures.get()));
    m_sound->end(m_stopTime);
    waitForEndOfStreams();
    gst_element_set_state(m_movie.pipeline.get(), GST_STATE_NULL);
    bool isDiscarded = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        isDiscarded = m_isDiscarded;
    }
    if (isDiscarded)
        QFile::remove(m_settings.path);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_state = State::Finished;
    m_changed.notify_all();
}

// The first frame that came to be after the stop tells that there are no more of those before it.
void MovieRecorder::waitForLastFrames()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait_for(lock, lastFrameLimit(), [this] { return m_hasAllFrames; });
    m_hasAllFrames = true;
}

// As long as the disk takes something.
void MovieRecorder::waitForEndOfStreams()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    qint64 before = 0;
    qint64 waiting = waitingBytes(m_movie);
    do {
        if (m_changed.wait_for(lock, closingLimit, [this] { return m_isFileComplete; }))
            return;
        before = std::exchange(waiting, waitingBytes(m_movie));
    } while (waiting < before);
    lock.unlock();
    fail(MovieEnd::Failed,
         QStringLiteral("The disk has taken nothing for ten seconds; the movie lacks its end."));
}
