#pragma once

#include "platform/capturedevice.h"
#include "platform/microphonestate.h"

#include <memory>

class SoundTrack;

// A microphone that gives its sound to a movie's track. It is opened and closed on threads of GStreamer's
// own: one that hangs, fails or is pulled out leaves the track silent and nothing else.
class MicrophoneStream
{
public:
    // Has the microphone opened. The user's default is what the sound server says it is now. `start` is the
    // moment, on GStreamer's system clock, from which the track's moments count.
    MicrophoneStream(const CaptureDevice &device, std::shared_ptr<SoundTrack> track, GstClockTime start);
    // The track is given nothing more. Has the microphone closed and does not wait for that.
    ~MicrophoneStream();
    MicrophoneStream(const MicrophoneStream &) = delete;
    MicrophoneStream &operator=(const MicrophoneStream &) = delete;

    // How the microphone does. It outlives the stream.
    std::shared_ptr<const MicrophoneState> state() const;

private:
    struct Microphone;

    bool build(const CaptureDevice &device);

    const std::shared_ptr<Microphone> m_microphone; // shared with the pipeline
    ElementHandle m_pipeline;
};
