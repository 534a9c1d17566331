#pragma once

#include "platform/camerafault.h"
#include "platform/cameramemory.h"
#include "platform/capturedevice.h"
#include "platform/captureevents.h"
#include "platform/capturemode.h"
#include "platform/framing.h"
#include "platform/grabthread.h"
#include "platform/videotarget.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <memory>
#include <mutex>
#include <vector>

class MovieRecorder;

// One camera with its microphone: the live picture on a widget, still pictures, movies with sound. Called on
// the GUI thread only. No call but the destructor holds that thread up for a device or a disk: calls that
// answer when something is done let timers and signals go on meanwhile, so whoever calls one must be ready
// for all that these do; even this object may go while one of its calls waits.
//
// Opening a camera goes on in the background. One that cannot be opened, or gives no picture within fifteen
// seconds, is reported as lost. Why, and every other failure, stands in the log: see platform/capturelog.h.
class LiveVideoData : public QObject
{
    Q_OBJECT

public:
    // Begins in the background to load what cameras need. Saves the first LiveVideoData the waiting if
    // something else is done in between; need not be called.
    static void prepare();

    // Opens no device.
    LiveVideoData();
    // Finishes a running movie and closes the camera. Stands still until the files of movies are whole, up to
    // thirty seconds each, and up to a second for the camera.
    ~LiveVideoData() override;

    bool created = false;        // Create() has succeeded, and Release() has not been called since
    bool supported = false;      // what the work needs is installed; after Create()
    bool isVeltrixCam = false;   // the camera is the maker's own document camera
    bool hasVideoDevice = false; // Create() found a camera
    qint32 nativeWidth = 0;      // size of the camera's picture, pixels
    qint32 nativeHeight = 0;

    // Tells this one from now on what happens; null for none. It is not owned.
    void setListener(CaptureListener *listener);

    // Shows the live picture on this widget, which stays the caller's.
    void SetTarget(QWidget *target);

    // Opens the chosen camera; while that is not there the one that was open last, else the first one. What
    // it gives is shown from Start() on. Where a GStreamer element is missing, supported is false and stderr
    // names it. With no camera, hasVideoDevice and created are false. While a camera is open nothing happens.
    void Create();
    // Whether Create() would find what it did not before: no camera is open, and the one that was open last
    // or was chosen is there, or one that was not when the last one was lost or Create() found none.
    bool canReopen();
    // Ends a running movie as RecordStop() does and closes the camera; the closing goes on in the background.
    void Release();

    // Starts the live picture; when it runs already nothing changes.
    void Start();
    // Holds the live picture: no more of them are made. The camera runs on, and so does a movie.
    void Stop();
    // Makes the picture anew for the target as it is now.
    void Reset();

    // One step of digital zoom, for the live picture, photos and movies: around the middle of what is shown,
    // or around a place on the target, which stays where it is as far as the picture's edges let it. Places
    // and ways here are in the target's own pixels.
    void ZoomIn();
    void ZoomOut();
    void zoomInAround(const QPoint &place);
    void zoomOutAround(const QPoint &place);
    // Shows the whole picture, as after Release().
    void resetZoom();
    bool isZoomed() const { return !m_framing.zoom.isNone(); }
    // Takes hold of what is shown, and moves it that far from there, up to the picture's edges.
    void holdPicture();
    void dragPicture(const QPoint &way);
    // Turns the live picture, photos and movies by a quarter clockwise; for all cameras from now on. A movie
    // that runs keeps its size: the picture is fitted into it.
    void turnPicture();
    // By how many quarters it is turned, 0 to 3.
    int quarterTurns() const { return m_framing.turn.quarters(); }

    // Switches the camera to this size; a size that it does not offer changes nothing. While a movie runs
    // the switch waits for its end.
    void SetResolution(int width, int height);
    // The sizes that the camera offers, "640x480" and so on, smallest to largest; empty without a camera.
    QStringList GetResoList() const;

    // The names of the cameras that are there now, each once; of several with one name the second ends in
    // " 2", and so on.
    QStringList GetVideoDeviceList();
    // Chooses a camera of the list last returned, for the next Create(). Another index changes nothing.
    void SetVideoDevice(int index);

    // Whether the opened camera gives pictures at this moment.
    bool IsValidVideoDevice();
    // Whether there is a usable microphone. While a movie runs: whether its microphone could be opened, for
    // which this waits up to two seconds. Else: whether there is one, other than one that the last movie
    // could not open.
    bool IsValidAudioDevice();

    // Starts a movie with the default microphone's sound; IsRecording() tells whether it runs then. Without a
    // camera that gives pictures or without a microphone nothing starts and no file is made. Waits for a
    // camera that is being opened, for one just started up to a second, and for the disk up to five.
    void Record(const QString &path);
    // Whether a movie runs.
    bool IsRecording() const;
    // Whether the last Record() had camera and microphone, and no whole picture came.
    bool lacksPicture() const { return m_lacksPicture; }
    // Ends the movie. Waits for its file up to half a second; where the disk is slower it is finished in the
    // background. Without a movie nothing happens.
    void RecordStop();
    // Whether a file is still being finished in the background. That takes as long as the disk goes on.
    bool isFinishingMovie();
    // The paths of all movies whose files are not whole, a running one too.
    QStringList unfinishedMovies() const;
    // Whether the last movie that has ended was without a microphone's sound for more than two seconds on
    // end.
    bool hadSoundHole() const { return m_hadSoundHole; }

    // Saves the newest picture at the camera's full size as a PNG file. Waits for a camera that is being
    // opened, for one just started and for a whole picture up to a second, and for the disk up to ten. False
    // when it cannot be saved; no file is left then. While another call of it waits it answers false at once.
    bool SaveBitmap(QString path); // NOLINT(performance-unnecessary-value-param): part of the interface
    // Why the last SaveBitmap() that is through could not save; None when it did.
    PhotoFault lastPhotoFault() const { return m_lastPhotoFault; }

    // The program itself uses only the last of these signals and none of these slots: they are all here
    // because the class's interface has them.
signals:
    // A running movie was ended, since it could not go on; movieHasEnded() was told why.
    void devicestop();
    // The camera reported an error; disconnectDevice() follows.
    void deviceerr();
    // The open camera was lost; cameraIsLost() was told why. Sent once for each Create(), after a running
    // movie was ended and its file waited for as RecordStop() does.
    void disconnectDevice();

public slots:
    // Shows the newest picture.
    void grab();
    // Ends a running movie that cannot go on.
    void RecordMovie();
    // Looks whether the open camera is still there.
    void device();

private:
    // Devices and the camera: livevideodata.cpp
    bool followDevices();
    std::vector<CaptureDevice> awaitCameras();
    std::vector<CaptureDevice> awaitMicrophones();
    void noteDevices();
    bool chooseCamera(const std::vector<CaptureDevice> &listed);
    bool isListed() const;
    void openCamera();
    void closeCamera();
    void closeCameraAndWait();
    void noteLive();
    void watch();
    void lose(CameraFailure failure);
    void applyResolution();
    FramePtr awaitFrame();

    // What is shown: livevideoview.cpp
    void updateView();
    QPointF onShownPart(const QPointF &way) const;
    QPointF fromMiddle(const QPoint &place) const;

    // Movies: livevideomovie.cpp
    void startMovie(const QString &path);
    std::shared_ptr<MovieRecorder> stopMovie();
    void tellMovieEnd(const std::shared_ptr<MovieRecorder> &movie, MovieEnd why);
    void endMovie(MovieEnd why);
    void finishMovies();
    bool awaitMicrophone();
    void lookAtMovieFiles();

    // Photos: livevideostill.cpp
    PhotoFault savePhoto(const QString &path);

    CaptureListener *m_listener = nullptr; // not owned
    VideoTarget m_target;
    Framing m_framing;
    Zoom m_heldZoom; // where holdPicture() took hold
    QTimer m_watch;

    std::vector<CaptureDevice> m_lastList;
    CameraMemory m_memory;
    CaptureDevice m_camera; // the one that is open
    std::vector<CaptureMode> m_modes;
    CaptureMode m_mode;
    QSize m_wantedSize; // asked for during a movie; empty when none is
    std::shared_ptr<std::timed_mutex> m_cameraInUse;
    std::unique_ptr<GrabThread> m_grabThread;
    int m_useCount = 0; // of Create() and Release(): whoever waited sees that the camera is another one
    bool m_isFollowing = false; // what comes and goes
    bool m_isStarted = false;
    bool m_isLost = false;
    bool m_isLiveTold = false; // since Create()

    std::shared_ptr<MovieRecorder> m_movie;
    std::shared_ptr<MovieRecorder> m_startingMovie; // while Record() waits for it
    std::vector<std::shared_ptr<MovieRecorder>> m_unfinished;
    QTimer m_fileWatch;                          // runs while there are unfinished ones
    std::shared_ptr<GstDevice> m_deafMicrophone; // that the last movie could not open; null when it could
    bool m_lacksPicture = false;
    bool m_isRecordCalled = false;
    bool m_hadSoundHole = false;

    bool m_isSaving = false;
    PhotoFault m_lastPhotoFault = PhotoFault::None;
};
