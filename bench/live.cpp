// Processor time for each displayed frame of a 1920x1080 camera: the live view against the same camera in
// gst-launch-1.0.

#include "bench/comparison.h"
#include "bench/measuredprocess.h"
#include "tests/support/testdevices.h"

#include <QElapsedTimer>
#include <QSize>

#include <initializer_list>

namespace
{

constexpr int rounds = 5;
constexpr qint64 settlingMilliseconds = 1500;
constexpr qint64 measuredMilliseconds = 5000;

struct Cost {
    double program = 0; // milliseconds for each displayed frame
    double xServer = 0;
    double framesPerSecond = 0;
};

struct Camera {
    const char *name;
    const char *format; // as the control file has it
    const char *caps;
    const char *decoder;
};

Cost measure(const QString &program, const QStringList &arguments)
{
    MeasuredProcess process(program, arguments);
    const qint64 server = xServerProcess();
    QElapsedTimer clock;
    clock.start();
    int first = process.nextRendered();
    while (clock.elapsed() < settlingMilliseconds)
        first = process.nextRendered();
    clock.restart();
    const double programStart = process.processorTime();
    const double serverStart = processorSeconds(server);
    int last = first;
    while (clock.elapsed() < measuredMilliseconds)
        last = process.nextRendered();
    const double frames = last - first;
    return {(process.processorTime() - programStart) * 1000 / frames,
            (processorSeconds(server) - serverStart) * 1000 / frames,
            frames * 1000 / double(clock.elapsed())};
}

Cost measurePeer(const Camera &camera, const QSize &window)
{
    return measure(
        "gst-launch-1.0",
        launchLine(
            QString("-v orvanetestsource device=\"camera cam\" ! %1,width=1920,height=1080,framerate=30/1 ! "
                    "%2 videoconvert ! videoscale ! video/x-raw,width=%3,height=%4 ! "
                    "fpsdisplaysink text-overlay=false fps-update-interval=500 video-sink=ximagesink")
                .arg(camera.caps, camera.decoder)
                .arg(window.width())
                .arg(window.height())));
}

void compare(const Camera &camera, const QSize &window)
{
    TestDevices devices;
    devices.camera("cam").formats(camera.format).content("page");
    devices.write();
    const QString size = QString("%1x%2").arg(window.width()).arg(window.height());
    Comparison program({QString("%1 camera in %2").arg(camera.name, size), "ms/frame", 1.0});
    Comparison server({"  the X server's share", "ms/frame"});
    Comparison rate({"  frames shown", "1/s"});
    for (int round = 0; round < rounds; ++round) {
        const Cost ours = measure(LIVE_PROGRAM, {"show", size});
        const Cost peers = measurePeer(camera, window);
        program.add(ours.program, peers.program);
        server.add(ours.xServer, peers.xServer);
        rate.add(ours.framesPerSecond, peers.framesPerSecond);
    }
    program.print();
    server.print();
    rate.print();
}

} // namespace

int main()
{
    // Over the row of buttons on a screen of 1920x1080 and on one of 1024x768.
    const std::initializer_list<QSize> windows = {{1749, 984}, {1024, 576}};
    const std::initializer_list<Camera> cameras = {
        {"raw", "YUY2 1920x1080 30", "video/x-raw,format=YUY2", ""},
        {"JPEG", "JPEG 1920x1080 30", "image/jpeg", "jpegdec !"},
    };
    for (const Camera &camera : cameras) {
        for (const QSize &window : windows)
            compare(camera, window);
    }
}
