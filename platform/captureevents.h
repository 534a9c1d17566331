#pragma once

#include <QImage>

// What a LiveVideoData has to tell beside its signals, and why. Everything is told on the GUI thread.

// Why a camera was lost.
enum class CameraFault {
    None,
    Unplugged,
    Busy, // another program has it
    NoPermission,
    NoBandwidth,  // it shares its USB bus with too much else
    Silent,       // three seconds without a picture, once it had given some
    NotAnswering, // no first picture within fifteen seconds of being opened
    Failed        // anything else; the log has the driver's own words
};

// Why a movie ended.
enum class MovieEnd {
    None, // it has not
    Asked,
    DiskFull,
    Failed, // its disk, its index or an encoder does not go on
    CameraLost
};

// Why a photo could not be saved.
enum class PhotoFault {
    None,
    NoPicture, // the camera gave none
    DiskFull,
    DiskHangs, // ten seconds without an answer
    Failed
};

// Told of what happens to a camera, its photos and its movies. Each operation may be left as it is here,
// doing nothing.
class CaptureListener
{
public:
    virtual ~CaptureListener() = default;

    // The first picture since the camera was opened by Create() has come.
    virtual void cameraIsLive() {}
    // The open camera was lost; deviceerr() and disconnectDevice() are emitted right afterwards.
    virtual void cameraIsLost(CameraFault) {}
    // A movie that ran has ended; its file may still be being finished. Asked is what RecordStop() and
    // Release() give.
    virtual void movieHasEnded(MovieEnd) {}
    // The file of a movie that has ended will lack its end. Told once a movie; the disk may still be waited
    // for.
    virtual void movieFileIsBroken() {}
    // The files of all movies that have ended are finished now.
    virtual void movieFilesAreFinished() {}
    // The picture that SaveBitmap() is saving, in full size, Format_RGB32; its file does not stand yet.
    virtual void photoIsTaken(const QImage &) {}
    // A camera or microphone came or went.
    virtual void devicesChanged() {}
};
