#pragma once

#include "platform/capturedevice.h"
#include "platform/captureevents.h"

#include <memory>
#include <vector>

// Remembers which camera the user chose, which one was open last and what was there when it was lost, so that
// the same camera is taken again when it comes back and no other one is mistaken for it. GUI thread only.
class CameraMemory
{
public:
    // The user chose this camera.
    void choose(const CaptureDevice &camera);

    // Which of the cameras that are there to open: the chosen one, else the one that was open last, else the
    // first. One without a device when there is none. What it answers becomes the one that was open last.
    CaptureDevice pick(const std::vector<CaptureDevice> &listed);

    // These are listed now: what a provider that was started afresh lists anew is known to be the same.
    void follow(const std::vector<CaptureDevice> &listed);

    // The camera that was open was lost while these were listed.
    void noteLoss(CameraFault why, const std::vector<CaptureDevice> &listed);

    // Whether opening again makes sense: the camera that pick() would take first is there, or one that was
    // not when the last one was lost or pick() found none.
    bool canReopen(const std::vector<CaptureDevice> &listed) const;

private:
    CaptureDevice again(const std::vector<CaptureDevice> &listed, const CaptureDevice &camera) const;
    bool wasBeside(const CaptureDevice &camera) const;

    CaptureDevice m_chosen;              // without a device before a choice
    CaptureDevice m_last;                // without a device before the first
    std::vector<CaptureDevice> m_beside; // others that have been there since the last one was lost
    std::shared_ptr<GstDevice> m_gone;   // the lost one's place in the list, once it was unplugged
};
