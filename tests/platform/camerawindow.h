#pragma once

#include "platform/livevideodata.h"
#include "tests/plugins/counterpicture.h"
#include "tests/support/testdevices.h"

#include <QFrame>
#include <QGuiApplication>
#include <QScreen>
#include <QSignalSpy>
#include <QtTest>

#include <chrono>

// A camera with its live picture in a window of its own, as the program has it, to be looked at from outside:
// what counts is what stands on the screen.
class CameraWindow
{
public:
    explicit CameraWindow(const QSize &size = QSize(640, 480))
    {
        window.setFixedSize(size);
        window.setWindowFlags(Qt::FramelessWindowHint);
        capture.SetTarget(&window);
        window.move(0, 0);
        window.show();
        static_cast<void>(QTest::qWaitForWindowExposed(&window));
    }

    // Opens the camera and waits for its picture.
    bool start()
    {
        capture.Create();
        capture.Start();
        return capture.created && QTest::qWaitFor([this] { return capture.IsValidVideoDevice(); }, 3000) &&
               QTest::qWaitFor([this] { return showsPicture(); }, 3000);
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

    // The counter in the picture of that place in an image.
    static bool read(const QImage &image, const QRect &place, CounterReading *reading)
    {
        const auto luma = [&](int x, int y) { return qGray(image.pixel(place.x() + x, place.y() + y)); };
        return readCounter(luma, place.width(), place.height(), reading);
    }

    LiveVideoData capture;
    QFrame window;
};

inline qint64 nowMicroseconds()
{
    return std::chrono::duration_cast<std::chrono::microseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}
