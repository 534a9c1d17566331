#pragma once

#include "platform/livevideodata.h"
#include "tests/plugins/counterpicture.h"
#include "tests/support/testdevices.h"

#include <QElapsedTimer>
#include <QFrame>
#include <QGuiApplication>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <chrono>

inline qint64 nowMicroseconds()
{
    using namespace std::chrono;
    return duration_cast<microseconds>(steady_clock::now().time_since_epoch()).count();
}

// The longest time, in milliseconds, for which the thread that made it answered nothing, up to the end of
// what is being done.
class Heartbeat
{
public:
    Heartbeat()
    {
        m_last.start();
        QObject::connect(&m_beat, &QTimer::timeout, [this] { longest(); });
        m_beat.start(5);
    }
    qint64 longest() { return m_longest = std::max(m_longest, m_last.restart()); }

private:
    QTimer m_beat;
    QElapsedTimer m_last;
    qint64 m_longest = 0;
};

// What a LiveVideoData told.
struct Told : CaptureListener {
    void cameraIsLive() override { ++live; }
    void cameraIsLost(CameraFault why) override { lost = why; }
    void movieHasEnded(MovieEnd why) override { ended = why; }
    void movieFilesAreFinished() override { ++files; }
    void photoIsTaken(const QImage &picture) override { photo = picture; }
    void devicesChanged() override { ++changes; }

    int live = 0;
    CameraFault lost = CameraFault::None;
    MovieEnd ended = MovieEnd::None;
    int files = 0;
    QImage photo;
    int changes = 0;
};

// A camera with its live picture in a window of its own, as the program has it, to be looked at from outside:
// what counts is what stands on the screen.
class CameraWindow
{
public:
    explicit CameraWindow(const QSize &size = QSize(640, 480))
        : lost(&capture, &LiveVideoData::disconnectDevice)
    {
        window.setFixedSize(size);
        window.setWindowFlags(Qt::FramelessWindowHint);
        capture.setListener(&told);
        capture.SetTarget(&window);
        window.move(0, 0);
        window.show();
        static_cast<void>(QTest::qWaitForWindowExposed(&window));
    }

    // Waits until the cameras of these names, in any order, are all there are.
    bool lists(QStringList names)
    {
        names.sort();
        return QTest::qWaitFor([&] {
            QStringList listed = capture.GetVideoDeviceList();
            listed.sort();
            return listed == names;
        });
    }
    void choose(const QString &name) { capture.SetVideoDevice(capture.GetVideoDeviceList().indexOf(name)); }

    // Waits for a camera, opens it and waits for its picture.
    bool start()
    {
        if (!QTest::qWaitFor([this] { return !capture.GetVideoDeviceList().isEmpty(); }))
            return false;
        capture.Create();
        capture.Start();
        return capture.created && QTest::qWaitFor([this] { return capture.IsValidVideoDevice(); }) &&
               QTest::qWaitFor([this] { return showsPicture(); });
    }

    // Whether anything but black stands on the middle line of the window.
    bool showsPicture() const
    {
        const QImage image = screen();
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, image.height() / 2)) > 20)
                return true;
        }
        return false;
    }

    QImage screen() const { return QGuiApplication::primaryScreen()->grabWindow(window.winId()).toImage(); }

    // When the counter picture was captured that stands there in an image; -1 when none does.
    static qint64 capturedAt(const QImage &image, const QRect &place)
    {
        const auto luma = [&](int x, int y) { return qGray(image.pixel(place.x() + x, place.y() + y)); };
        return readCounter(luma, place.width(), place.height());
    }
    // Of the picture on the whole window.
    qint64 shownSince() const { return capturedAt(screen(), window.rect()); }

    Told told;
    LiveVideoData capture;
    QFrame window;
    QSignalSpy lost;
};
