#pragma once

#include "platform/gsthandles.h"
#include "platform/microphonestate.h"

#include <array>
#include <memory>

// A microphone's way into a running movie's mixer. The microphone is opened and closed on threads of
// GStreamer's own: one that hangs, fails or is pulled out leaves the movie silent and nothing else.
class MicrophoneBranch
{
public:
    // Adds the branch to the running pipeline and has the microphone opened. The device is borrowed. Every
    // sound of it is told to the gaps too.
    MicrophoneBranch(GstElement *pipeline, GstElement *mixer, GstDevice *device,
                     std::shared_ptr<SoundGaps> gaps);
    // Takes the branch out of the pipeline, which must still be there, and has the microphone closed; waits
    // for neither.
    ~MicrophoneBranch();
    MicrophoneBranch(const MicrophoneBranch &) = delete;
    MicrophoneBranch &operator=(const MicrophoneBranch &) = delete;

    // How the microphone does. It outlives the branch.
    std::shared_ptr<const MicrophoneState> state() const;

    // Notes an error that comes from the microphone of such a branch. False, and nothing is done, when it
    // comes from elsewhere.
    static bool noteError(GstMessage *message);

private:
    bool connectTo(GstElement *mixer);
    void watchSound();

    struct Microphone;

    GstElement *const m_pipeline;
    GstElement *const m_mixer;
    ElementHandle m_source;
    std::array<GstElement *, 3> m_chain{}; // behind the source; owned by the pipeline
    std::shared_ptr<Microphone> m_microphone;
    // What the closing call will own, made in advance since a destructor must not fail.
    std::unique_ptr<std::shared_ptr<Microphone>> m_closing;
};
