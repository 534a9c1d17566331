#pragma once

#include "capture/capturefacts.h"
#include "capture/driverproxy.h"

#include <QCursor>
#include <QStringList>
#include <QWidget>

#include <future>
#include <memory>

class LiveCapture;
class PictureHands;
class TouchDriver;
class QFrame;
class QGraphicsSceneMouseEvent;
class QLabel;
class QTimer;

// The live picture of the camera with its "LIVE" caption: opens and closes the camera, takes photos into the
// working folder, records movies, and zooms by a two-contact drag on the board where the camera is the
// maker's own. Any camera's picture is zoomed, moved and turned as PictureHands has it. What is so with all
// of them stands in facts().
//
// setResolution(), isVeltrixCam() and the series of ContinuesShot() are there because the class's interface
// has them: the program uses none.
//
// What takes, records, opens, closes or measures waits for a camera or a disk. The windows live on meanwhile,
// and so signals come and timers tick; the loss of the camera is told afterwards.
class LiveVideoWidget : public QWidget, public IDriverEventListener
{
    Q_OBJECT

public:
    // Begins in the background to load what cameras need, for a view that is made a little later.
    static void prepare();
    // Loads in the background what the player of a recorded movie takes, so that the first one begins at
    // once.
    void preparePlayer();

    // Opens no camera.
    explicit LiveVideoWidget(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~LiveVideoWidget() override;

    // What is so now; facts().changed() tells of every change.
    const CaptureFacts &facts() const;
    // Opens the camera, unless it is open. Says so when cameras cannot be used at all on this machine; a
    // missing camera only shows in isVideoValid(). The camera that was open before comes first.
    void Create();
    // Looks whether a camera that was lost, or a new one, could be opened now: Facts::canReopen.
    void lookForCamera();
    bool isCreate() const;
    // Starts the live picture; does nothing while no camera is open.
    void Start();
    // Holds the live picture and ends a series.
    void Stop();
    // Closes the camera and ends a series.
    void Release();
    // Fits the picture to the widget as it is now.
    void Reset();

    // Asks for a size of picture, "640x480"; does nothing while no camera is open.
    void setResolution(const QString &text);
    // The camera's sizes in the same form.
    QStringList GetResoList() const;

    // The cameras that are there, and the choice of one of them by its place in that list.
    QStringList getVideoDeviceList();
    void setVideoDevice(int index);

    // Pixels of the camera's picture; nothing before a camera was opened.
    QSize getNativeSize() const;
    bool isVeltrixCam() const;

    // Says that SaveBmp() is about to be called: the photo is pending from now on.
    void announcePhoto();
    // Drops the taken picture from the facts, which keep it until somebody has shown it; or all about the
    // photo.
    void forgetPicture();
    void forgetPhoto();
    // Saves a photo in the working folder, and answers when the file is whole. Its bare file name; empty when
    // it could not be saved, and why in facts(). A camera that is still opening is waited for.
    QString SaveBmp();
    // Measures whether the disk has room for a capture: Facts::hasRoom.
    void lookForRoom();

    // Starts a movie in the working folder, with its preview picture. False, after a warning, when the camera
    // or the microphone is not usable or the disk refuses the file; nothing is left of the movie then. False
    // without one when something is waited for, and when the camera is lost meanwhile, which the facts tell.
    bool Record();
    // Ends the movie. Its file may be finished in the background: the movie is finishing then.
    void RecordStop();
    // Whether the file of a movie that was stopped is not yet whole.
    bool isFinishingMovie();
    // Says that it was told that a movie lacks its end.
    void forgetBrokenMovie();
    // The bare names of movies that are not whole, and of their previews.
    QStringList unfinishedMovies() const;
    // Full path of the latest movie; empty before the first.
    QString moviePath() const;

    // Whether a camera is open and not lost. True before anybody has looked.
    bool isVideoValid() const;
    // Whether the microphone was usable when last looked at, by Record(); Create() hopes for the best.
    bool isAudioValid() const;
    // What is said of a microphone that is not.
    static QString invalidAudioText();
    static QString invalidVideoText();

    bool eventFilter(QObject *watched, QEvent *event) override;
    QPaintEngine *paintEngine() const override;

    void notifyFingerDown(const QPoint &position, int finger) override;
    void notifyFingerMove(const QPoint &position, int finger) override;
    void notifyFingerUp(const QPoint &position, int finger) override;

signals:
    // A series of ContinuesShot() is complete.
    void ShotMax();
    // The open camera was lost.
    void disconnectDevice();

public slots:
    // Takes a photo every five seconds until max were taken, at least one.
    void ContinuesShot(int max);
    // One step of digital zoom; nothing while no camera is open.
    void Zoomin();
    void Zoomout();

private slots:
    void execShot();
    void slotdisconnectDevice();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setUpPictureFrame();
    void setUpOverlay();
    void setUpCaption();
    void setUpOpeningNote();
    void tellHeldLoss();
    void endSeries();
    Cause startMovie(QString *warning);
    Cause refusalOfMovie(const QString &warning) const;
    void savePreview();
    void noteEndOfMovie();
    QString invalidDevicesText();
    void followFacts();
    void noteTurn();
    void moveAsInScene(const QGraphicsSceneMouseEvent &move);
    void followGesture(int distance);
    void showZoomCursor();
    void endGesture();
    void letGo();

    class Waiting;

    // Whether one of the operations that wait is under way.
    bool isBusy() const { return m_busy > 0; }

    const std::unique_ptr<LiveCapture> m_capture;
    std::future<void> m_playerLoading;
    int m_busy = 0;
    bool m_isLossToTell = false; // held back while something waits
    QLabel *m_liveCaption = nullptr;
    QLabel *m_openingNote = nullptr; // of a camera that takes its time
    QTimer *m_openingTimer = nullptr;
    QTimer *m_shotTimer = nullptr;
    int m_shotLimit = 0;
    int m_shotCount = 0;
    QFrame *m_pictureFrame = nullptr;
    QStringList m_shotList;
    int m_lastShadowDistance = 0; // 0 while no gesture is under way
    bool m_isZoomDrag = false;
    QCursor m_savedCursor;
    bool m_hasZoomCursor = false;
    QWidget *m_overlay = nullptr;
    PictureHands *m_hands = nullptr;
    TouchDriver *m_touchDriver = nullptr;
};
