#pragma once

#include "platform/frameconverter.h"
#include "platform/framesink.h"
#include "platform/microphonebranch.h"
#include "platform/moviepipeline.h"

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>

// One movie from its start to its finished file. Should the program die, the file is playable up to about a
// second before, or some more seconds where the disk does not keep up. It is kept whatever happens while it
// is finished.
class MovieRecorder : public FrameSink, public std::enable_shared_from_this<MovieRecorder>
{
public:
    // Starts recording with the frame that is on the screen; null when the file cannot be made or an element
    // is missing.
    static std::shared_ptr<MovieRecorder> start(const MovieSettings &settings, const CapturedFrame &first,
                                                const Zoom &zoom);
    ~MovieRecorder() override;

    // Adds a frame of the kind told at the start, showing what the zoom shows. While the encoder is behind by
    // a third of a second frames are left out rather than kept waiting.
    void take(const FramePtr &frame, const Zoom &zoom) override;

    // Whether the movie has to end: the disk is full or nearly so, the file's index is, or writing failed.
    bool mustEnd() const;

    // Finishes the file and waits for that as long as told; false when it goes on in the background then.
    // Also called when recording has failed; later calls only wait.
    bool finish(std::chrono::milliseconds wait);

private:
    enum class State { Recording, Failed, Finishing, Finished };

    explicit MovieRecorder(const MovieSettings &settings);
    bool startPipeline();
    static GstBusSyncReply onMessage(GstBus *bus, GstMessage *message, gpointer self);
    void note(GstMessage *message);
    void push(const CapturedFrame &frame, const Zoom &zoom, GstClockTime time);
    BufferHandle shown(const CapturedFrame &frame, const Zoom &zoom);
    void close();
    void endStreams();
    void waitForFile();

    const MovieSettings m_settings;
    MoviePipeline m_movie;
    std::unique_ptr<MicrophoneBranch> m_microphone;
    std::chrono::steady_clock::time_point m_startedAt;
    GstClockTime m_startTime = 0; // on GStreamer's system clock, as the frames' times are
    FrameConverter m_zoomer{GST_VIDEO_RESAMPLER_METHOD_LINEAR};

    mutable std::mutex m_mutex; // guards all below
    std::condition_variable m_changed;
    State m_state = State::Recording;
    bool m_isFileComplete = false;
};
