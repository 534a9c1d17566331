// Whether sound and picture keep step: twenty minutes of a microphone whose clock is 500 millionths fast or
// slow through a movie's track, which is told its moments and so need not wait for them; and movies of two
// minutes with such a microphone, as long as they take, read as a player does.

#include "bench/comparison.h"
#include "bench/measuredprocess.h"
#include "tests/platform/moviereader.h"
#include "tests/support/simulatedsound.h"
#include "tests/support/testdevices.h"

#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <thread>

namespace
{

constexpr double milliseconds = 1000;
constexpr double twentyMinutes = 1200;
constexpr int millionths = 500;
constexpr auto movieLength = std::chrono::minutes(2);

void measureTrack(int clock)
{
    const SimulatedSound sound = simulate({clock / 1e6, 0, 0.03, twentyMinutes});
    printValue(QString("sound after 20 minutes at %1 ppm, beside our clock").arg(clock),
               {std::abs(sound.atEnd) * milliseconds}, "ms", 40);
    printValue("  its longest jump", {sound.longestJump * milliseconds}, "ms", 20);
    printValue("  silence in it", {sound.silence * milliseconds}, "ms", 1);
}

void measureMovie(int clock, const QString &path)
{
    TestDevices devices;
    devices.camera("cam").content("flash");
    devices.microphone("mic").sound("beep").clock(clock);
    devices.write();
    {
        MeasuredProcess process(LIVE_PROGRAM, {"record", path});
        std::this_thread::sleep_for(movieLength);
        process.interrupt();
    }
    const std::vector<double> late = latenesses(readMovie(path));
    if (late.size() < 10)
        qFatal("%s holds no flashes and beeps", qPrintable(path));
    double most = 0;
    for (const double seconds : late)
        most = std::max(most, std::abs(seconds));
    printValue(QString("sound beside the picture of a movie of 2 minutes at %1 ppm").arg(clock),
               {std::abs(late.back()) * milliseconds}, "ms", 40);
    printValue("  at most", {most * milliseconds}, "ms", 40);
}

} // namespace

int main(int argc, char **argv)
{
    gst_init(&argc, &argv);
    const QTemporaryDir folder;
    for (const int clock : {millionths, -millionths})
        measureTrack(clock);
    for (const int clock : {millionths, -millionths})
        measureMovie(clock, folder.filePath(QString("movie%1.mov").arg(clock)));
}
