#pragma once

#include "platform/capturedframe.h"
#include "platform/captureevents.h"
#include "platform/moviepipeline.h"
#include "platform/moviesound.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>

// One movie from its start to its finished file. Should the program die, the file is playable up to about a
// second before, or some more seconds where the disk does not keep up. It is kept whatever happens while it
// is finished.
class MovieRecorder : public std::enable_shared_from_this<MovieRecorder>
{
public:
    // Makes nothing yet; frames may be given to it already and are kept for the start.
    explicit MovieRecorder(const MovieSettings &settings);
    ~MovieRecorder();
    MovieRecorder(const MovieRecorder &) = delete;
    MovieRecorder &operator=(const MovieRecorder &) = delete;

    const MovieSettings &settings() const { return m_settings; }

    // How long after the end the frames from before it are waited for. They are on their way for one or two
    // of their periods; a camera that hangs sends none any more.
    std::chrono::milliseconds lastFrameLimit() const;

    // Starts recording; the movie begins with this frame, which is on the screen, or with the first that was
    // given if that is older. False when the file cannot be made or an element is missing. Takes as long as
    // the disk does to open the file. Any thread, once.
    bool start(const FramePtr &first);

    // Whether it takes a frame that was captured then, on GStreamer's system clock: up to the call of
    // finish(), and none once the movie was discarded or has failed. After a no it takes no later one either.
    // Like all that follows but waitForFile(), this waits for nothing.
    bool wants(GstClockTime captured) const;
    // Adds a picture of the running camera, as the settings have it; in order, one at a time. While the
    // encoder is behind by a second, at its start by three, or by 128 MB frames are left out rather than kept
    // waiting.
    void take(const FramePtr &frame);
    // It is given no further frame.
    void noteLastFrame();

    // Why the movie cannot go on: the disk is full or nearly so, the file's index is, or writing failed. None
    // while it can.
    MovieEnd end() const;

    // Whether the movie has a usable microphone now, and whether the one that it started with could be
    // opened; nothing while that is not known. These once the movie has started:
    std::optional<bool> hasMicrophone() const { return m_sound->isUsable(); }
    std::optional<bool> couldOpenMicrophone() const { return m_sound->couldOpenFirst(); }
    // The longest time without sound of a microphone, up to now, in seconds.
    double longestSoundGap() const { return m_sound->longestGap(); }

    // Begins to finish the file, in the background; what was captured by now and is still on its way goes in
    // first. Also when recording has failed.
    void finish();
    // As finish(), of a movie that nobody wants any more, started or not: the file is removed in the end.
    void discard();
    // Whether the file is finished, and waiting for that; false when it has not come in that time.
    bool isFinished() const;
    // Whether its file has been found to lack its end since this was asked last. Found before it is finished.
    bool takeBreak();
    bool waitForFile(std::chrono::milliseconds limit);

private:
    enum class State { Starting, Recording, Finishing, Finished };

    void keep(const FramePtr &frame);
    void keepFirst(const FramePtr &first);
    bool startPipeline();
    bool beginRecording();
    static GstBusSyncReply onMessage(GstBus *bus, GstMessage *message, gpointer self);
    void note(GstMessage *message);
    bool isFromEncoder(GstMessage *message);
    void fail(MovieEnd why, const QString &line);
    guint64 mostWaitingFrames() const;
    bool isBehind();
    void push(const CapturedFrame &frame);
    bool hasIndexFor(GstClockTime time);
    void tellShortRoom() const;
    void watch();
    void lookForLife();
    void lookAtRoom();
    void close();
    void waitForLastFrames();
    void waitForEndOfStreams();

    const MovieSettings m_settings;
    const H264Coder &m_encoder; // the one of its beginning; another may be in use later
    const QString m_folder;
    MoviePipeline m_movie; // made by start()
    std::unique_ptr<MovieSound> m_sound;
    std::chrono::steady_clock::time_point m_startedAt;
    GstClockTime m_startTime = 0;     // capture time of the first frame, on GStreamer's system clock
    GstClockTime m_indexUsedUpTo = 0; // if each frame were half of a frame's time after the one before
    GstClockTime m_nextTime = 0;      // the next frame is not older: the first may come twice

    bool m_hasKeptUp = false; // the encoder, since it was started
    std::chrono::steady_clock::time_point m_lastInTime = std::chrono::steady_clock::now(); // of a frame
    std::atomic<std::chrono::steady_clock::time_point> m_lastLook{
        std::chrono::steady_clock::time_point::min()};

    mutable std::mutex m_mutex; // guards all below
    std::condition_variable m_changed;
    State m_state = State::Starting;
    GstClockTime m_stopTime = 0; // set when it becomes Finishing
    std::deque<FramePtr> m_kept; // for the start
    gsize m_keptBytes = 0;
    MovieEnd m_end = MovieEnd::None;
    bool m_isBreakNews = false; // for takeBreak()
    bool m_isDiscarded = false;
    bool m_hasAllFrames = false;
    bool m_isFileComplete = false;
};
