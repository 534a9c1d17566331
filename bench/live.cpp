// What the live view takes for each frame of a camera, against the same camera in gst-launch-1.0; what it
// takes while nobody looks; how old a picture is on the screen; and the memory after a minute.

#include "bench/comparison.h"
#include "bench/measuredprocess.h"
#include "tests/plugins/counterpicture.h"
#include "tests/support/testdevices.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>

#include <chrono>
#include <initializer_list>
#include <thread>

namespace
{

constexpr int rounds = 5;
constexpr qint64 settlingMilliseconds = 1500;
constexpr qint64 measuredMilliseconds = 5000;
constexpr qint64 remembering = 60000;
constexpr double framesPerSecond = 30;
constexpr double mostMegabytes = 120;
constexpr double mostDelay = 1.5 * 1000 / framesPerSecond;

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
    double mostAtLarge; // of the peer's time, in the larger window and in the smaller one
    double mostAtSmall;
};

const QSize large(1749, 984); // over the row of buttons on a screen of 1920x1080
const QSize small(1024, 576); // and on one of 1024x768
const Camera rawCamera{"raw", "YUY2 1920x1080 30", "video/x-raw,format=YUY2,width=1920,height=1080", "", 0.6,
                       0.5};
const Camera jpegCamera{"JPEG", "JPEG 1920x1080 30", "image/jpeg,width=1920,height=1080", "jpegdec !", 0.75,
                        0.5};
const Camera largeCamera{
    "JPEG 3840x2160", "JPEG 3840x2160 30", "image/jpeg,width=3840,height=2160", "jpegdec !", 0.5, 0.5};

QString written(const QSize &size)
{
    return QString("%1x%2").arg(size.width()).arg(size.height());
}

void plug(const Camera &camera, const char *content, TestDevices *devices)
{
    devices->camera("cam").formats(camera.format).content(content);
    devices->microphone("mic");
    devices->write();
}

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

QStringList peerOf(const Camera &camera, const QSize &window)
{
    return launchLine(
        QString(
            "-v orvanetestsource device=\"camera cam\" ! %1,framerate=30/1 ! %2 videoconvert ! videoscale ! "
            "video/x-raw,width=%3,height=%4 ! "
            "fpsdisplaysink text-overlay=false fps-update-interval=500 video-sink=ximagesink")
            .arg(camera.caps, camera.decoder)
            .arg(window.width())
            .arg(window.height()));
}

void compare(const Camera &camera, const QSize &window)
{
    TestDevices devices;
    plug(camera, "page", &devices);
    const double goal = window == large ? camera.mostAtLarge : camera.mostAtSmall;
    Comparison program({QString("%1 camera in %2").arg(camera.name, written(window)), "ms/frame", goal});
    Comparison server({"  the X server's share", "ms/frame"});
    Comparison rate({"  frames shown", "1/s"});
    for (int round = 0; round < rounds; ++round) {
        const Cost ours = measure(LIVE_PROGRAM, {"show", written(window)});
        const Cost peers = measure("gst-launch-1.0", peerOf(camera, window));
        program.add(ours.program, peers.program);
        server.add(ours.xServer, peers.xServer);
        rate.add(ours.framesPerSecond, peers.framesPerSecond);
    }
    program.print();
    server.print();
    rate.print();
}

// The camera runs on in both; the peer is our own live view.
void compareUnseen(const Camera &camera)
{
    TestDevices devices;
    plug(camera, "page", &devices);
    Comparison unseen(
        {QString("%1 camera, nobody looks, against our live view").arg(camera.name), "ms/frame", 0.1});
    const auto perFrame = [](const QString &how) {
        MeasuredProcess process(LIVE_PROGRAM, {how, written(large)});
        QElapsedTimer clock;
        for (clock.start(); clock.elapsed() < settlingMilliseconds;)
            process.nextRendered();
        const double before = process.processorTime();
        for (clock.restart(); clock.elapsed() < measuredMilliseconds;)
            process.nextRendered();
        return (process.processorTime() - before) * 1e6 / (double(clock.elapsed()) * framesPerSecond);
    };
    for (int round = 0; round < rounds; ++round) {
        const double ours = perFrame("hide");
        unseen.add(ours, perFrame("show"));
    }
    unseen.print();
}

double now()
{
    using namespace std::chrono;
    return duration<double, std::milli>(steady_clock::now().time_since_epoch()).count();
}

// Milliseconds from the moment that the camera stamps on a picture to the one at which it is first seen on
// the screen, which is looked at without a pause. Both the camera's drawing and the look count.
void measureDelay(const Camera &camera, const QString &how, const QString &name)
{
    const QSize window(1280, 720);
    TestDevices devices;
    plug(camera, "counter", &devices);
    const MeasuredProcess process(LIVE_PROGRAM, {how, written(window)});
    std::vector<double> delays;
    qint64 last = 0;
    QElapsedTimer clock;
    for (clock.start(); clock.elapsed() < settlingMilliseconds + measuredMilliseconds;) {
        const QImage screen =
            QGuiApplication::primaryScreen()->grabWindow(0, 0, 0, window.width(), window.height()).toImage();
        const qint64 captured = readCounter([&](int x, int y) { return qGray(screen.pixel(x, y)); },
                                            window.width(), window.height());
        if (captured > last && clock.elapsed() > settlingMilliseconds)
            delays.push_back(now() - double(captured) / 1000);
        last = qMax(last, captured);
    }
    if (delays.empty())
        qFatal("no picture is seen on the screen");
    printValue(name, delays, "ms", mostDelay);
}

void measureMemory(const Camera &camera)
{
    TestDevices devices;
    plug(camera, "page", &devices);
    const MeasuredProcess ours(LIVE_PROGRAM, {"show", written(large)});
    const MeasuredProcess peers("gst-launch-1.0", peerOf(camera, large));
    std::this_thread::sleep_for(std::chrono::milliseconds(remembering));
    Comparison memory({QString("memory with a %1 camera after a minute").arg(camera.name), "MB", 1.0});
    memory.add(ours.memory(), peers.memory());
    memory.print();
    printValue("  ours alone", {ours.memory()}, "MB", mostMegabytes);
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    for (const Camera &camera : {rawCamera, jpegCamera}) {
        compare(camera, large);
        compare(camera, small);
    }
    compare(largeCamera, large);
    compareUnseen(jpegCamera);
    measureDelay(rawCamera, "show", "delay from a raw camera to the screen");
    measureDelay(rawCamera, "film", "  the same while recording");
    measureDelay(jpegCamera, "show", "delay from a JPEG camera to the screen");
    measureMemory(rawCamera);
    measureMemory(jpegCamera);
}
