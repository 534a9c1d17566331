#pragma once

#include "platform/capturedevice.h"
#include "platform/microphonebranch.h"

#include <memory>
#include <mutex>
#include <optional>
#include <vector>

// Keeps a movie in sound: one microphone at a time lies on the movie's mixer, and where it is lost it is
// tried again, in turn with the default one, until one gives sound.
class MovieSound
{
public:
    // Has the microphone opened. The elements are borrowed until close(), and the pipeline runs.
    MovieSound(GstElement *pipeline, GstElement *mixer, const CaptureDevice &microphone);
    // close() has been called.
    ~MovieSound() = default;
    MovieSound(const MovieSound &) = delete;
    MovieSound &operator=(const MovieSound &) = delete;

    // Takes out a microphone that is lost, and tries one where there is none. To be called several times a
    // second, on a thread that may wait for the pipeline a little.
    void lookAfter();
    // The movie ends: nothing is looked after any more. Tells the log of a microphone that is lost already.
    void end();
    // Takes the microphone out; waits as lookAfter() does. After end().
    void close();

    // Whether the present microphone is usable, and whether the first one ever was; nothing while that is not
    // known. These wait for nothing.
    std::optional<bool> isUsable() const;
    std::optional<bool> couldOpenFirst() const { return m_first->wasUsable(); }
    // The longest time in which no microphone gave sound, up to now.
    std::chrono::milliseconds longestGap() const { return m_gaps->longest(); }

private:
    struct Opening {
        std::shared_ptr<GstDevice> device;
        std::shared_ptr<const MicrophoneState> state;
    };

    void open(const CaptureDevice &microphone);
    void tell(const QString &loss);
    QString loss(const std::vector<CaptureDevice> &listed) const;
    const CaptureDevice *next(const std::vector<CaptureDevice> &listed);
    bool hangs(const CaptureDevice &microphone);

    GstElement *const m_pipeline;
    GstElement *const m_mixer;
    const CaptureDevice m_wanted;
    const std::shared_ptr<SoundGaps> m_gaps = std::make_shared<SoundGaps>();

    std::mutex m_branchMutex;   // guards down to the next comment
    CaptureDevice m_microphone; // of the branch
    std::unique_ptr<MicrophoneBranch> m_branch;
    std::vector<Opening> m_openings; // that have not been answered
    MicrophoneState::Clock::time_point m_lastTry;
    bool m_isDefaultsTurn = false;
    bool m_hasEnded = false;
    QString m_told; // what the log has last

    mutable std::mutex m_presentMutex;                // guards m_present
    std::shared_ptr<const MicrophoneState> m_present; // null while there is no branch
    std::shared_ptr<const MicrophoneState> m_first;   // never changes
};
