#pragma once

#include "capture/capturefacts.h"
#include "platform/captureevents.h"
#include "platform/livevideodata.h"

// The live view's camera, and what happens to it turned into facts. Behind this header the view's users see
// nothing of the capture library.
class LiveCapture : public CaptureListener
{
public:
    LiveCapture();

    void cameraIsLive() override;
    void cameraIsLost(CameraFault why) override;
    void movieHasEnded(MovieEnd why) override;
    void movieFileIsBroken() override;
    void movieFilesAreFinished() override;
    void photoIsTaken(const QImage &picture) override;
    void devicesChanged() override;

    CaptureFacts facts;
    LiveVideoData data;
    bool isSupported = true; // until an attempt has shown that parts of the program are missing
};

// What a photo that failed in this way is told as.
Cause causeOf(PhotoFault fault);
