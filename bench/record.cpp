// Processor time of recording 1920x1080 at 30 frames a second with sound, nothing being shown, against
// gst-launch-1.0 with the same camera, microphone, encoders and file; and the frames that are missing from
// the movies, also from those of a 3840x2160 JPEG camera that is shown while photos are taken.

#include "bench/comparison.h"
#include "bench/measuredprocess.h"
#include "platform/gsthandles.h"
#include "tests/support/testdevices.h"

#include <QTemporaryDir>

#include <gst/app/gstappsink.h>

#include <algorithm>
#include <chrono>
#include <thread>

namespace
{

using namespace std::chrono_literals;

constexpr int rounds = 5;
constexpr auto settling = 2s;
constexpr auto measured = 8s;
constexpr double framesPerSecond = 30;

struct Recording {
    double processorShare = 0; // milliseconds for each frame's time
    double missingFrames = 0;
};

// Frames missing between the first and the last of a movie. The camera stamps frames evenly, so each missing
// one is a gap.
int missingFrames(const QString &path)
{
    const QByteArray description =
        "filesrc location=" + path.toUtf8() + " ! qtdemux ! video/x-h264 ! appsink name=sink";
    const ElementHandle pipeline(gst_parse_launch(description.constData(), nullptr));
    const ElementHandle sink(gst_bin_get_by_name(GST_BIN(pipeline.get()), "sink"));
    gst_element_set_state(pipeline.get(), GST_STATE_PLAYING);
    int frames = 0;
    int missing = 0;
    double previous = 0;
    // A broken file gives no end.
    constexpr GstClockTime limit = 5 * GST_SECOND;
    while (const SampleHandle sample{gst_app_sink_try_pull_sample(GST_APP_SINK(sink.get()), limit)}) {
        const double time = double(GST_BUFFER_PTS(gst_sample_get_buffer(sample.get()))) / GST_SECOND;
        if (++frames > 1)
            missing += qMax(0, qRound((time - previous) * framesPerSecond) - 1);
        previous = time;
    }
    gst_element_set_state(pipeline.get(), GST_STATE_NULL);
    if (frames < framesPerSecond)
        qFatal("%s holds no movie", qPrintable(path));
    return missing;
}

double worst(const std::vector<double> &missing)
{
    return *std::max_element(missing.begin(), missing.end());
}

Recording measure(const QString &program, const QStringList &arguments, const QString &path)
{
    MeasuredProcess process(program, arguments);
    std::this_thread::sleep_for(settling);
    const double start = process.processorTime();
    std::this_thread::sleep_for(measured);
    const double spent = process.processorTime() - start;
    process.interrupt();
    return {spent * 1000 / (std::chrono::duration<double>(measured).count() * framesPerSecond),
            double(missingFrames(path))};
}

// As platform/moviepipeline.cpp has it.
QStringList peer(const QString &path)
{
    return launchLine(
        "-e orvanetestsource device=\"camera cam\" ! "
        "video/x-raw,format=YUY2,width=1920,height=1080,framerate=30/1 ! queue ! videoconvert ! "
        "video/x-raw,format=I420 ! x264enc pass=qual quantizer=23 bitrate=9331 key-int-max=60 "
        "speed-preset=superfast tune=zerolatency ! h264parse ! queue ! mux. "
        "orvanetestmicrophone provide-clock=false device=\"microphone mic\" ! audioconvert ! audioresample ! "
        "audio/x-raw,format=F32LE,rate=48000,channels=2 ! avenc_aac bitrate=128000 ! aacparse ! "
        "queue ! mux. qtmux name=mux reserved-max-duration=660000000000 "
        "reserved-moov-update-period=500000000 reserved-bytes-per-sec=1440 ! "
        "filesink buffer-mode=unbuffered sync=false async=false location=" +
        path);
}

void plug(const QString &formats, TestDevices *devices)
{
    devices->camera("cam").formats(formats).content("page");
    devices->microphone("mic").sound("tone");
    devices->write();
}

void compareRecording(const QTemporaryDir &folder)
{
    TestDevices devices;
    plug("YUY2 1920x1080 30", &devices);
    Comparison time({"recording 1920x1080 at 30/s with sound", "ms/frame", 1.0});
    std::vector<double> missing;
    std::vector<double> missingFromPeers;
    for (int round = 0; round < rounds; ++round) {
        const QString ourPath = folder.filePath(QString("ours%1.mov").arg(round));
        const QString peerPath = folder.filePath(QString("peers%1.mov").arg(round));
        const Recording ours = measure(LIVE_PROGRAM, {"record", ourPath}, ourPath);
        const Recording peers = measure("gst-launch-1.0", peer(peerPath), peerPath);
        time.add(ours.processorShare, peers.processorShare);
        missing.push_back(ours.missingFrames);
        missingFromPeers.push_back(peers.missingFrames);
    }
    time.print();
    printValue("  frames missing from the worst movie", {worst(missing)}, "frames", 0);
    printValue("  frames missing from gst-launch-1.0's worst", {worst(missingFromPeers)}, "frames");
}

void countMissing(const QTemporaryDir &folder)
{
    TestDevices devices;
    plug("JPEG 3840x2160 30", &devices);
    std::vector<double> missing;
    for (int round = 0; round < rounds; ++round) {
        const QString path = folder.filePath(QString("lesson%1.mov").arg(round));
        missing.push_back(measure(LIVE_PROGRAM, {"lesson", path}, path).missingFrames);
    }
    printValue("frames missing with 3840x2160 JPEG, shown, and photos, worst", {worst(missing)}, "frames", 0);
}

} // namespace

int main(int argc, char **argv)
{
    gst_init(&argc, &argv);
    const QTemporaryDir folder;
    compareRecording(folder);
    countMissing(folder);
}
