#pragma once

#include <QImage>

enum class CameraFault { None, Unplugged, Busy, NoPermission, NoBandwidth, Silent, NotAnswering, Failed };
enum class MovieEnd { None, Asked, DiskFull, Failed, CameraLost };
enum class PhotoFault { None, NoPicture, DiskFull, DiskHangs, Failed };

class CaptureListener
{
public:
    virtual ~CaptureListener() = default;
    virtual void cameraIsLive() = 0;
    virtual void cameraIsLost(CameraFault why) = 0;
    virtual void movieHasEnded(MovieEnd why) = 0;
    virtual void movieFileIsFinished() = 0;
    virtual void photoIsTaken(const QImage &picture) = 0;
    virtual void devicesChanged() = 0;
};
