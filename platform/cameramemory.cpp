#include "platform/cameramemory.h"

#include <algorithm>

void CameraMemory::choose(const CaptureDevice &camera)
{
    m_chosen = camera;
}

CaptureDevice CameraMemory::pick(const std::vector<CaptureDevice> &listed)
{
    CaptureDevice picked = again(listed, m_chosen);
    if (picked.device)
        m_chosen = picked; // listed anew it is another device of GStreamer's
    else
        picked = again(listed, m_last);
    if (!picked.device && !listed.empty())
        picked = listed.front();
    m_beside.clear();
    m_gone.reset();
    if (picked.device)
        m_last = picked;
    return picked;
}

void CameraMemory::follow(const std::vector<CaptureDevice> &listed)
{
    std::vector<CaptureDevice> still;
    std::copy_if(
        listed.begin(), listed.end(), std::back_inserter(still), [this](const CaptureDevice &camera) {
            return std::any_of(m_beside.begin(), m_beside.end(), [&camera](const CaptureDevice &beside) {
                // Another one may have the node by now of one that was pulled out.
                return isSameMake(camera, beside) && isSameDevice(camera, beside);
            });
        });
    m_beside = std::move(still);
}

void CameraMemory::noteLoss(CameraFault why, const std::vector<CaptureDevice> &listed)
{
    m_beside.clear();
    for (const CaptureDevice &camera : listed) {
        if (camera.device != m_last.device)
            m_beside.push_back(camera);
    }
    if (why == CameraFault::Unplugged)
        m_gone = m_last.device;
}

bool CameraMemory::canReopen(const std::vector<CaptureDevice> &listed) const
{
    std::vector<CaptureDevice> cameras;
    // A stream mostly knows of its camera's going before the list does.
    std::copy_if(listed.begin(), listed.end(), std::back_inserter(cameras),
                 [this](const CaptureDevice &camera) { return camera.device != m_gone; });
    return again(cameras, m_chosen).device || again(cameras, m_last).device ||
           std::any_of(cameras.begin(), cameras.end(),
                       [this](const CaptureDevice &camera) { return !wasBeside(camera); });
}

// Two cameras of one make are told apart by their sockets only, and the lost one may come back in another
// socket: what was there beside it is not it.
CaptureDevice CameraMemory::again(const std::vector<CaptureDevice> &listed, const CaptureDevice &camera) const
{
    if (!camera.device)
        return {};
    std::vector<CaptureDevice> possible;
    for (const CaptureDevice &other : listed) {
        if (camera.device != m_last.device || !wasBeside(other))
            possible.push_back(other);
    }
    const CaptureDevice *found = findAgain(possible, camera);
    return found ? *found : CaptureDevice();
}

bool CameraMemory::wasBeside(const CaptureDevice &camera) const
{
    return std::any_of(m_beside.begin(), m_beside.end(),
                       [&camera](const CaptureDevice &beside) { return beside.device == camera.device; });
}
