#pragma once

#include "platform/capturedevice.h"
#include "platform/captureevents.h"
#include "platform/capturemode.h"
#include "platform/grabthread.h"
#include "platform/videotarget.h"
#include "platform/zoom.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <memory>
#include <mutex>
#include <vector>

class MovieRecorder;

// One camera with its microphone: the live picture on a widget, still pictures, movies with sound. Called on
// the GUI thread only, and no call waits for a device longer than it says here. Opening a camera goes on in
// the background; one that cannot be opened, or does not answer within three seconds, is reported as lost.
class LiveVideoData : public QObject
{
    Q_OBJECT

public:
    // Begins in the background to load what cameras need. Saves the first LiveVideoData the waiting if
    // something else is done in between; need not be called.
    static void prepare();

    // Opens no device.
    LiveVideoData();
    // Finishes a running movie, for which it waits up to thirty seconds, and closes the camera.
    ~LiveVideoData() override;

    bool created = false;        // Create() has succeeded, and Release() has not been called since
    bool supported = false;      // what the work needs is installed; after Create()
    bool isVeltrixCam = false;   // the camera is the maker's own document camera
    bool hasVideoDevice = false; // Create() found a camera
    qint32 nativeWidth = 0;      // size of the camera's picture, pixels
    qint32 nativeHeight = 0;

    // Shows the live picture on this widget, which stays the caller's.
    void SetTarget(QWidget *target);

    // Opens the chosen camera, or the first one while that is not there; what it gives is shown from Start()
    // on. Where a GStreamer element is missing, supported is false and stderr names it. With no camera,
    // hasVideoDevice and created are false.
    void Create();
    // Finishes a running movie and closes the camera; the closing goes on in the background.
    void Release();

    // Starts the live picture; when it runs already nothing changes.
    void Start();
    // Holds the live picture; the camera stays open. A running movie goes on.
    void Stop();
    // Makes the picture anew for the target as it is now.
    void Reset();

    // One step of digital zoom around the centre, for the live picture, photos and movies.
    void ZoomIn();
    void ZoomOut();

    // Switches the camera to this size; a size that it does not offer changes nothing. While a movie runs
    // the switch waits for its end.
    void SetResolution(int width, int height);
    // The sizes that the camera offers, "640x480" and so on, smallest to largest; empty without a camera.
    QStringList GetResoList() const;

    // The names of the cameras that are there now, each once.
    QStringList GetVideoDeviceList();
    // Chooses a camera of the list last returned, for the next Create(). Another index changes nothing.
    void SetVideoDevice(int index);

    // Whether the opened camera gives pictures, and whether there is a microphone, at this moment.
    bool IsValidVideoDevice();
    bool IsValidAudioDevice();

    // Starts a movie with the default microphone's sound. Without a camera that gives pictures or without a
    // microphone nothing starts and no file is made. A camera just started is waited for, up to a second.
    void Record(const QString &path);
    // Whether a movie runs.
    bool IsRecording() const;
    // Ends the movie. The file is finished within half a second, or in the background where the disk is
    // slower. Without a movie nothing happens.
    void RecordStop();
    // Whether a file is still being finished in the background. That takes as long as the disk goes on.
    bool isFinishingMovie();

    // Saves the newest picture at the camera's full size as a PNG file, waiting up to a second for a whole
    // one. False when none came or the file cannot be written; no file is left then.
    bool SaveBitmap(QString path); // NOLINT(performance-unnecessary-value-param): part of the interface

    void setListener(CaptureListener *) {}
    bool canReopen() { return !created && !GetVideoDeviceList().isEmpty(); }
    PhotoFault lastPhotoFault() const { return PhotoFault::Failed; }
    bool hadSoundHole() const { return false; }

signals:
    // A running movie was ended, since the disk or its file was full.
    void devicestop();
    // The camera reported an error; disconnectDevice() follows.
    void deviceerr();
    // The open camera was lost: pulled out, failed or silent for three seconds. Sent once for each Create().
    // A running movie is finished before.
    void disconnectDevice();

public slots:
    // Shows the newest picture.
    void grab();
    // Ends a running movie that cannot go on.
    void RecordMovie();
    // Looks whether the open camera is still there.
    void device();

private:
    bool chooseCamera();
    void openCamera();
    void closeCamera();
    void closeCameraAndWait();
    void updateView();
    void watch();
    void lose();
    void finishMovie();
    void forgetFinishedMovies();
    void applyResolution();

    VideoTarget m_target;
    Zoom m_zoom;
    QTimer m_watch;

    std::vector<CaptureDevice> m_lastList;
    std::unique_ptr<CaptureDevice> m_chosen; // by the user; null before a choice
    CaptureDevice m_camera;                  // the one that is open
    std::vector<CaptureMode> m_modes;
    CaptureMode m_mode;
    QSize m_wantedSize; // asked for during a movie; empty when none is
    std::shared_ptr<std::timed_mutex> m_cameraInUse;
    std::unique_ptr<GrabThread> m_grabThread;
    std::shared_ptr<MovieRecorder> m_movie;
    std::vector<std::shared_ptr<MovieRecorder>> m_unfinished; // whose disk was slow
    bool m_isStarted = false;
    bool m_isStopped = false; // held by Stop()
    bool m_isLost = false;
};
