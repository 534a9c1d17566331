#pragma once

#include "platform/driverproxy.h"
#include "platform/livevideodata.h"

#include <QCursor>
#include <QStringList>
#include <QWidget>

class QFrame;
class QLabel;
class QTimer;

// The live picture of the camera with its "LIVE" caption: opens and closes the camera, takes photos into the
// working folder, records movies, and zooms by a two-contact drag on the board where the camera is the
// maker's own.
class LiveVideoWidget : public QWidget, public IDriverEventListener
{
    Q_OBJECT

public:
    // Begins in the background to load what cameras need, for a view that is made a little later.
    static void prepare();

    // Opens no camera.
    explicit LiveVideoWidget(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~LiveVideoWidget() override;

    // Opens the camera, unless it is open. Says so when cameras cannot be used at all on this machine; a
    // missing camera only shows in isVideoValid().
    void Create();
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

    // Saves a photo in the working folder. Its bare file name; empty when it could not be saved.
    QString SaveBmp();

    // Starts a movie in the working folder, with its preview picture. False, after a warning, when the camera
    // or the microphone is not usable.
    bool Record();
    void RecordStop();
    // Whether the file of a movie that was stopped is not yet whole.
    bool isFinishingMovie();
    // Full path of the latest movie; empty before the first.
    QString moviePath() const { return m_moviePath; }

    // Whether the devices were usable when last looked at, by Create(), Record() or Release().
    bool isVideoValid() const { return m_isVideoValid; }
    bool isAudioValid() const { return m_isAudioValid; }

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
    void resizeEvent(QResizeEvent *event) override;

private:
    void setUpPictureFrame();
    void setUpOverlay();
    void setUpCaption();
    void endSeries();
    bool warnOfInvalidDevices();
    void followGesture(int distance);

    LiveVideoData m_capture;
    QString m_moviePath;
    QLabel *m_liveCaption = nullptr;
    QTimer *m_shotTimer = nullptr;
    int m_shotLimit = 0;
    int m_shotCount = 0;
    QFrame *m_pictureFrame = nullptr;
    bool m_isVideoValid = true;
    bool m_isAudioValid = true;
    QStringList m_shotList;
    int m_lastShadowDistance = 0; // 0 while no gesture is under way
    bool m_isZoomDrag = false;
    QCursor m_savedCursor;
    QWidget *m_overlay = nullptr;
};
