// Time and size of a saved photo: what the program does, from the camera's frame to the file, against Qt's
// own PNG writer, which is given the finished RGB picture.

#include "bench/comparison.h"
#include "platform/stillpicture.h"
#include "tests/support/testdevices.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>

#include <gst/app/gstappsink.h>

namespace
{

constexpr int rounds = 7;

FramePtr frameOf(const QSize &size)
{
    TestDevices devices;
    devices.camera("cam")
        .formats(QString("YUY2 %1x%2 15").arg(size.width()).arg(size.height()))
        .content("page");
    devices.write();
    const ElementHandle pipeline(gst_parse_launch(
        "orvanetestsource device=\"camera cam\" num-buffers=1 ! appsink name=sink", nullptr));
    const ElementHandle sink(gst_bin_get_by_name(GST_BIN(pipeline.get()), "sink"));
    gst_element_set_state(pipeline.get(), GST_STATE_PLAYING);
    const SampleHandle sample(gst_app_sink_pull_sample(GST_APP_SINK(sink.get())));
    if (!sample)
        qFatal("the camera gives no frame");
    auto frame = std::make_shared<CapturedFrame>();
    gst_video_info_from_caps(&frame->info, gst_sample_get_caps(sample.get()));
    frame->picture = BufferHandle(gst_buffer_copy_deep(gst_sample_get_buffer(sample.get())));
    gst_element_set_state(pipeline.get(), GST_STATE_NULL);
    return frame;
}

void compare(const QSize &size)
{
    const QTemporaryDir folder;
    const QString ours = folder.filePath("ours.png");
    const QString qts = folder.filePath("qts.png");
    const FramePtr frame = frameOf(size);
    const QString name = QString("photo of %1x%2").arg(size.width()).arg(size.height());
    Comparison time({name, "ms", 0.07});
    Comparison bytes({"  its file", "MB", 1.1});
    for (int round = 0; round < rounds; ++round) {
        QFile::remove(ours);
        StillPicture still({frame, std::make_shared<NewestFrame>(), Framing(), ours}, false);
        const double ourTime = secondsOf([&] { still.save(); });
        bool isSaved = still.result() == PhotoFault::None;
        const QImage picture = QImage(ours).convertToFormat(QImage::Format_RGB888);
        const double qtTime = secondsOf([&] { isSaved = isSaved && picture.save(qts, "PNG"); });
        if (!isSaved || QImage(qts) != QImage(ours))
            qFatal("the photos were not saved alike");
        time.add(ourTime * 1000, qtTime * 1000);
        bytes.add(double(QFileInfo(ours).size()) / 1e6, double(QFileInfo(qts).size()) / 1e6);
    }
    time.print();
    bytes.print();
}

} // namespace

int main(int argc, char **argv)
{
    gst_init(&argc, &argv);
    compare({1920, 1080});
    compare({3264, 2448});
}
