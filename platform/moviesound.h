#pragma once

#include "platform/capturedevice.h"
#include "platform/microphonestream.h"
#include "platform/soundtrack.h"

#include <memory>
#include <mutex>
#include <optional>
#include <vector>

// Keeps a movie in sound: one microphone at a time gives its sound to the movie's track, and where it is lost
// it is tried again, in turn with the default one, until one gives sound.
class MovieSound
{
public:
    // Has the microphone opened. The appsrc, which takes the track, is borrowed until end() has been called.
    // `start` is the moment on GStreamer's system clock at which the movie begins.
    MovieSound(GstElement *sound, GstClockTime start, const CaptureDevice &microphone);
    ~MovieSound() = default;
    MovieSound(const MovieSound &) = delete;
    MovieSound &operator=(const MovieSound &) = delete;

    // Takes out a microphone that is lost, and tries one where there is none; has silence stand in. To be
    // called several times a second.
    void lookAfter();
    // The movie ends at this moment of GStreamer's system clock. Waits for what is still to come of its
    // sound, three quarters of a second at most, closes the microphone and ends the track. Tells the log of
    // a microphone that is lost already.
    void end(GstClockTime moment);

    // Whether the present microphone is usable, and whether the first one ever was; nothing while that is not
    // known. These wait for nothing.
    std::optional<bool> isUsable() const;
    std::optional<bool> couldOpenFirst() const { return m_first->wasUsable(); }
    // The longest time in which no microphone gave sound, up to now, in seconds.
    double longestGap() const { return m_track->longestGap(sinceStart(gst_util_get_timestamp())); }

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
    double sinceStart(GstClockTime moment) const;

    GstElement *const m_sound;
    const GstClockTime m_start;
    const std::shared_ptr<SoundTrack> m_track;
    const CaptureDevice m_wanted;

    std::mutex m_streamMutex;   // guards down to the next comment
    CaptureDevice m_microphone; // of the stream
    std::unique_ptr<MicrophoneStream> m_stream;
    std::vector<Opening> m_openings; // that have not been answered
    MicrophoneState::Clock::time_point m_lastTry;
    bool m_isDefaultsTurn = false;
    bool m_hasEnded = false;
    QString m_told; // what the log has last

    mutable std::mutex m_presentMutex;                // guards m_present
    std::shared_ptr<const MicrophoneState> m_present; // null while there is no stream
    std::shared_ptr<const MicrophoneState> m_first;   // never changes
};
