#pragma once

#include "platform/gsthandles.h"

// A microphone's way into a movie's mixer. The microphone is opened and closed on threads of GStreamer's own:
// one that hangs, fails or is pulled out leaves the movie silent and nothing else.
class MicrophoneBranch
{
public:
    // Adds the branch to the running pipeline and has the microphone opened. The device is borrowed. Without
    // an element for it the movie stays silent.
    MicrophoneBranch(GstElement *pipeline, GstElement *mixer, GstDevice *device);
    // Has the microphone closed; returns at once. The pipeline must still be there.
    ~MicrophoneBranch();
    MicrophoneBranch(const MicrophoneBranch &) = delete;
    MicrophoneBranch &operator=(const MicrophoneBranch &) = delete;

    // Whether the message comes from the microphone of such a branch.
    static bool isSender(GstMessage *message);

private:
    bool connectTo(GstElement *mixer);

    struct Opening;

    GstElement *const m_pipeline;
    ElementHandle m_source;
    // What the closing call will own, made in advance since a destructor must not fail.
    std::unique_ptr<std::shared_ptr<Opening>> m_opening;
};
