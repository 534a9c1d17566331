// From the start of the program to its first live frame on the screen, against gst-launch-1.0 with the same
// camera. The camera shows one colour that nothing else on the screen has; the screen is looked at from
// outside.

#include "bench/comparison.h"
#include "bench/measuredprocess.h"
#include "tests/support/testdevices.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <chrono>
#include <cstdlib>
#include <memory>
#include <thread>

namespace
{

using namespace std::chrono_literals;

constexpr int rounds = 15;
constexpr auto framePeriod = 33333us;
constexpr auto longestStart = 20s;
constexpr auto lookEvery = 1ms;
// In the middle of the live picture on a screen of 1920x1080.
constexpr int lookAtX = 960;
constexpr int lookAtY = 492;
constexpr int colour = 0xc020c0;

class WatchedScreen
{
public:
    WatchedScreen() : m_display(XOpenDisplay(nullptr), XCloseDisplay)
    {
        if (!m_display)
            qFatal("there is no screen");
    }

    bool showsCamera() const
    {
        XImage *image = XGetImage(m_display.get(), DefaultRootWindow(m_display.get()), lookAtX, lookAtY, 1, 1,
                                  AllPlanes, ZPixmap);
        const unsigned long pixel = XGetPixel(image, 0, 0);
        XDestroyImage(image);
        // A camera's picture goes through another colour space, which rounds.
        constexpr int tolerance = 12;
        for (const int shift : {0, 8, 16}) {
            if (std::abs(int(pixel >> shift & 0xff) - (colour >> shift & 0xff)) > tolerance)
                return false;
        }
        return true;
    }

    void waitUntil(bool shown) const
    {
        const auto limit = std::chrono::steady_clock::now() + longestStart;
        while (showsCamera() != shown) {
            if (std::chrono::steady_clock::now() > limit)
                qFatal("the live picture does not %s", shown ? "come" : "go");
            std::this_thread::sleep_for(lookEvery);
        }
    }

private:
    std::unique_ptr<Display, int (*)(Display *)> m_display;
};

// The camera's frames come at even moments, and the program before went at one of them: each round begins at
// another moment between two, or all would wait equally long for the first.
double millisecondsToPicture(const WatchedScreen &screen, int round, const QString &program,
                             const QStringList &arguments)
{
    std::this_thread::sleep_for(framePeriod * round / rounds);
    double milliseconds = 0;
    {
        std::unique_ptr<MeasuredProcess> process;
        milliseconds = 1000 * secondsOf([&] {
                           process = std::make_unique<MeasuredProcess>(program, arguments);
                           screen.waitUntil(true);
                       });
    }
    screen.waitUntil(false);
    return milliseconds;
}

} // namespace

int main()
{
    TestDevices devices;
    devices.camera("cam").formats("YUY2 1920x1080 30").content(QString::number(colour, 16));
    devices.microphone("mic").sound("silence");
    devices.write();
    const WatchedScreen screen;
    const QStringList peer =
        launchLine("-q orvanetestsource device=\"camera cam\" ! "
                   "video/x-raw,format=YUY2,width=1920,height=1080,framerate=30/1 "
                   "! videoconvert ! videoscale ! video/x-raw,width=1749,height=984 ! ximagesink");

    Comparison start({"start to the first live frame on the screen", "ms", 1.2});
    for (int round = 0; round <= rounds; ++round) {
        const double ours = millisecondsToPicture(screen, round, ORVANE_PROGRAM, {});
        const double peers = millisecondsToPicture(screen, round, "gst-launch-1.0", peer);
        // The first round fills the caches that a machine in use has filled.
        if (round > 0)
            start.add(ours, peers);
    }
    start.print();
}
