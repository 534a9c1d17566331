#include "capture/livecapture.h"

namespace
{

Cause causeOf(CameraFault fault)
{
    switch (fault) {
    case CameraFault::Unplugged:
        return Cause::Unplugged;
    case CameraFault::Busy:
    case CameraFault::NoPermission:
    case CameraFault::NoBandwidth:
        return Cause::Refused;
    default:
        return Cause::Camera;
    }
}

} // namespace

Cause causeOf(PhotoFault fault)
{
    switch (fault) {
    case PhotoFault::None:
        return Cause::None;
    case PhotoFault::NoPicture:
        return Cause::Camera;
    case PhotoFault::DiskFull:
    case PhotoFault::DiskHangs:
        return Cause::Disk;
    default:
        return Cause::Failure;
    }
}

LiveCapture::LiveCapture()
{
    data.setListener(this);
}

void LiveCapture::cameraIsLive()
{
    facts.change([](Facts &now) { now.camera = {CameraState::Live, Cause::None}; });
}

void LiveCapture::cameraIsLost(CameraFault why)
{
    facts.change([why](Facts &now) { now.camera = {CameraState::Lost, causeOf(why)}; });
}

// A movie that was asked to end is known to whoever asked. A camera's loss is told as such.
void LiveCapture::movieHasEnded(MovieEnd why)
{
    if (facts.now().movie.state != MovieState::Recording || why == MovieEnd::Asked)
        return;
    facts.change([why](Facts &now) {
        now.movie.state = MovieState::Ended;
        now.movie.why = why == MovieEnd::CameraLost ? Cause::Camera : Cause::Disk;
    });
}

void LiveCapture::movieFileIsBroken()
{
    facts.change([](Facts &now) { now.movie.isBroken = true; });
}

void LiveCapture::movieFilesAreFinished()
{
    facts.change([](Facts &now) {
        if (now.movie.state == MovieState::Finishing)
            now.movie.state = MovieState::None;
    });
}

// A movie's preview is taken likewise, and is no photo.
void LiveCapture::photoIsTaken(const QImage &picture)
{
    if (facts.now().photo.state == PhotoState::Pending)
        facts.change([&picture](Facts &now) { now.photo.picture = picture; });
}

void LiveCapture::devicesChanged()
{
    // Where parts of the program are missing, every attempt would say so again.
    const bool canReopen = isSupported && data.canReopen();
    if (canReopen != facts.now().canReopen)
        facts.change([canReopen](Facts &now) { now.canReopen = canReopen; });
}
