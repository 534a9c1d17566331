// The test devices themselves: other tests trust that they list, fail, number and time as told.
#include "tests/support/testdevices.h"
#include "tests/plugins/counterpicture.h"

#include <QtTest>
#include <chrono>
#include <future>
#include <gst/app/gstappsink.h>
#include <gst/gst.h>
#include <gst/video/video.h>
#include <memory>
#include <mutex>

namespace
{

constexpr GstClockTime frameLimit = 5 * GST_SECOND;
constexpr auto changeLimit = std::chrono::seconds(5);

struct Unref {
    void operator()(gpointer object) const { gst_object_unref(object); }
    void operator()(GstSample *sample) const { gst_sample_unref(sample); }
    void operator()(GstMessage *message) const { gst_message_unref(message); }
};
using Sample = std::unique_ptr<GstSample, Unref>;
using Message = std::unique_ptr<GstMessage, Unref>;

// Runs from its making to its end; the sinks are called "out", or "picture" and "sound".
class Pipeline
{
public:
    explicit Pipeline(const QString &text) : pipeline_(gst_parse_launch(qPrintable(text), nullptr))
    {
        gst_element_set_state(pipeline_.get(), GST_STATE_PLAYING);
    }
    ~Pipeline() { gst_element_set_state(pipeline_.get(), GST_STATE_NULL); }
    Pipeline(const Pipeline &) = delete;
    Pipeline &operator=(const Pipeline &) = delete;

    Sample next(const char *sink = "out", GstClockTime limit = frameLimit)
    {
        const std::unique_ptr<GstElement, Unref> element(gst_bin_get_by_name(GST_BIN(pipeline_.get()), sink));
        return Sample(gst_app_sink_try_pull_sample(GST_APP_SINK(element.get()), limit));
    }
    GstBus *bus() { return GST_ELEMENT_BUS(pipeline_.get()); }
    // 0 when no error comes.
    int errorCode()
    {
        const Message message(gst_bus_timed_pop_filtered(bus(), frameLimit, GST_MESSAGE_ERROR));
        GError *error = nullptr;
        if (message)
            gst_message_parse_error(message.get(), &error, nullptr);
        const int code = error && error->domain == GST_RESOURCE_ERROR ? error->code : 0;
        g_clear_error(&error);
        return code;
    }

private:
    std::unique_ptr<GstElement, Unref> pipeline_;
};

bool readSample(GstSample *sample, CounterReading *reading)
{
    GstVideoInfo info;
    GstVideoFrame frame;
    if (!gst_video_info_from_caps(&info, gst_sample_get_caps(sample)) ||
        !gst_video_frame_map(&frame, &info, gst_sample_get_buffer(sample), GST_MAP_READ))
        return false;
    const auto luma = [&frame](int x, int y) {
        const auto *data = static_cast<const uint8_t *>(GST_VIDEO_FRAME_COMP_DATA(&frame, 0));
        return int(
            data[y * GST_VIDEO_FRAME_COMP_STRIDE(&frame, 0) + x * GST_VIDEO_FRAME_COMP_PSTRIDE(&frame, 0)]);
    };
    const bool read = readCounter(luma, info.width, info.height, reading);
    gst_video_frame_unmap(&frame);
    return read;
}

// The time of the first byte that is brighter or louder than the rest, or GST_CLOCK_TIME_NONE.
GstClockTime outstanding(GstSample *sample, int bytesPerSecond, int threshold)
{
    GstBuffer *buffer = gst_sample_get_buffer(sample);
    GstMapInfo map;
    gst_buffer_map(buffer, &map, GST_MAP_READ);
    GstClockTime time = GST_CLOCK_TIME_NONE;
    for (gsize byte = 0; byte < map.size && time == GST_CLOCK_TIME_NONE; ++byte) {
        if (map.data[byte] > threshold)
            time =
                GST_BUFFER_PTS(buffer) + (bytesPerSecond ? byte * GST_SECOND / guint64(bytesPerSecond) : 0);
    }
    gst_buffer_unmap(buffer, &map);
    return time;
}

// What a bus tells, in order, from whatever thread.
class Events
{
public:
    Events() = default;
    ~Events()
    {
        for (GstBus *bus : buses_) {
            gst_bus_set_sync_handler(bus, nullptr, nullptr, nullptr);
            gst_object_unref(bus);
        }
    }
    Events(const Events &) = delete;
    Events &operator=(const Events &) = delete;

    void record(GstBus *bus)
    {
        buses_ << GST_BUS(gst_object_ref(bus));
        gst_bus_set_sync_handler(bus, handle, this, nullptr);
    }
    QStringList all()
    {
        const std::lock_guard lock(mutex_);
        return events_;
    }

private:
    static GstBusSyncReply handle(GstBus *, GstMessage *message, gpointer self)
    {
        const QString type = GST_MESSAGE_TYPE_NAME(message);
        auto *events = static_cast<Events *>(self);
        const std::lock_guard lock(events->mutex_);
        // An error of the source comes with a second one of its base class: the first counts.
        if ((type == "error" || type == "device-removed") && !events->events_.contains(type))
            events->events_ << type;
        return GST_BUS_PASS;
    }
    QVector<GstBus *> buses_;
    std::mutex mutex_;
    QStringList events_;
};

} // namespace

class TestDevicesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { gst_init(nullptr, nullptr); }
    void providersList();
    void unplugIsToldInOrder_data();
    void unplugIsToldInOrder();
    void faults();
    void counterIsRead_data();
    void counterIsRead();
    void lateReaderLosesFrames();
    void flashAndBeepMeet();
    void damagedFrames();
};

void TestDevicesTest::providersList()
{
    const auto names = [](const char *factory) {
        const std::unique_ptr<GstDeviceProvider, Unref> provider(
            gst_device_provider_factory_get_by_name(factory));
        QStringList found;
        GList *devices = gst_device_provider_get_devices(provider.get());
        for (GList *item = devices; item; item = item->next) {
            gchar *name = gst_device_get_display_name(GST_DEVICE(item->data));
            GstStructure *properties = gst_device_get_properties(GST_DEVICE(item->data));
            const char *path =
                properties ? gst_structure_get_string(properties, "device.path") : "no properties";
            found << QString("%1: %2").arg(name, path ? path : "no path");
            g_free(name);
            g_clear_pointer(&properties, gst_structure_free);
        }
        g_list_free_full(devices, gst_object_unref);
        return found;
    };
    const std::unique_ptr<GstDeviceProvider, Unref> started(
        gst_device_provider_factory_get_by_name("orvanetestprovidera"));
    QVERIFY(gst_device_provider_start(started.get()));
    QCOMPARE(names("orvanetestprovidera"), QStringList());
    TestDevices devices;
    devices.camera("1").name("Board Cam").property("device.path", "/dev/video9");
    devices.camera("2").name("Twin").provider("b").noProperties();
    devices.microphone("3").name("Desk");
    devices.write();
    const QStringList both = {"Board Cam: /dev/video9", "Desk: no path"};
    const auto sorted = [&names] {
        QStringList list = names("orvanetestprovidera");
        list.sort();
        return list;
    };
    QTRY_COMPARE(sorted(), both);
    QCOMPARE(names("orvanetestproviderb"), QStringList{"Twin: no properties"});
    devices.pull("1");
    QTRY_COMPARE(sorted(), QStringList{"Desk: no path"});
    devices.plug("1");
    QTRY_COMPARE(sorted(), both);
    gst_device_provider_stop(started.get());
}

void TestDevicesTest::unplugIsToldInOrder_data()
{
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("error-first") << QStringList{"error", "device-removed"};
    QTest::newRow("removed-first") << QStringList{"device-removed", "error"};
    QTest::newRow("removed-only") << QStringList{"device-removed"};
    QTest::newRow("error-only") << QStringList{"error"};
}

void TestDevicesTest::unplugIsToldInOrder()
{
    QFETCH(QStringList, expected);
    TestDevices devices;
    devices.camera("1").order(QTest::currentDataTag());
    devices.write();
    const std::unique_ptr<GstDeviceProvider, Unref> provider(
        gst_device_provider_factory_get_by_name("orvanetestprovidera"));
    gst_device_provider_start(provider.get());
    const std::unique_ptr<GstBus, Unref> providerBus(gst_device_provider_get_bus(provider.get()));
    {
        Pipeline pipeline("orvanetestcamera device=1 ! appsink name=out");
        Events events;
        QVERIFY(pipeline.next());
        events.record(providerBus.get());
        events.record(pipeline.bus());
        devices.pull("1");
        QTRY_COMPARE(events.all(), expected);
        // Whatever else would be told has been told when a later change is seen.
        devices.camera("later");
        devices.write();
        QTRY_COMPARE(g_list_length(provider->devices), guint(expected.contains("device-removed") ? 1 : 2));
        QCOMPARE(events.all(), expected);
    }
    gst_device_provider_stop(provider.get());
}

void TestDevicesTest::faults()
{
    TestDevices devices;
    devices.camera("1").fault("busy");
    devices.microphone("2").fault("busy");
    devices.write();
    for (const QString source : {"orvanetestcamera device=1", "orvanetestmicrophone device=2"})
        QCOMPARE(Pipeline(source + " ! fakesink").errorCode(), int(GST_RESOURCE_ERROR_BUSY));
    QCOMPARE(Pipeline("orvanetestcamera device=none ! fakesink").errorCode(),
             int(GST_RESOURCE_ERROR_NOT_FOUND));

    devices.setFault("1", "hang-open");
    const auto opened = [] { return bool(Pipeline("orvanetestcamera device=1 ! appsink name=out").next()); };
    auto opening = std::async(std::launch::async, opened);
    QCOMPARE(opening.wait_for(std::chrono::milliseconds(300)), std::future_status::timeout);
    devices.setFault("1", "none");
    QCOMPARE(opening.wait_for(changeLimit), std::future_status::ready);
    QVERIFY(opening.get());

    devices.setFault("1", "hang-close");
    auto closed = std::make_unique<Pipeline>("orvanetestcamera device=1 ! appsink name=out");
    QVERIFY(closed->next());
    auto closing = std::async(std::launch::async, [&closed] { closed.reset(); });
    QCOMPARE(closing.wait_for(std::chrono::milliseconds(300)), std::future_status::timeout);
    devices.setFault("1", "none");
    QCOMPARE(closing.wait_for(changeLimit), std::future_status::ready);

    Pipeline pipeline("orvanetestcamera device=1 ! appsink name=out max-buffers=1 drop=true");
    QVERIFY(pipeline.next());
    devices.setFault("1", "stall");
    QTRY_VERIFY(!pipeline.next("out", GST_SECOND / 5));
    devices.setFault("1", "none");
    QVERIFY(pipeline.next());
    devices.setFault("1", "read-error");
    QCOMPARE(pipeline.errorCode(), int(GST_RESOURCE_ERROR_READ));
}

void TestDevicesTest::counterIsRead_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("raw") << "video/x-raw,format=YUY2";
    QTest::newRow("quarter") << "video/x-raw,format=YUY2 ! videoscale ! video/x-raw,width=160,height=120";
    QTest::newRow("nearest")
        << "video/x-raw,format=YUY2 ! videoscale method=0 ! video/x-raw,width=211,height=157";
    QTest::newRow("jpeg") << "image/jpeg ! jpegdec";
    QTest::newRow("h264") << "video/x-h264 ! avdec_h264";
}

void TestDevicesTest::counterIsRead()
{
    QFETCH(QString, way);
    TestDevices devices;
    devices.camera("1").content("counter").formats("YUY2 640x480 30;JPEG 640x480 30;H264 640x480 30");
    devices.write();
    Pipeline pipeline("orvanetestcamera device=1 ! " + way + " ! appsink name=out");
    CounterReading last;
    for (int frame = 0; frame < 5; ++frame) {
        const Sample sample = pipeline.next();
        QVERIFY(sample);
        CounterReading reading;
        QVERIFY(readSample(sample.get(), &reading));
        const qint64 age = g_get_monotonic_time() - reading.capturedUs;
        QVERIFY2(age >= 0 && age < 1000000, qPrintable(QString::number(age)));
        QVERIFY(frame == 0 || reading.frame > last.frame);
        last = reading;
    }
}

void TestDevicesTest::lateReaderLosesFrames()
{
    TestDevices devices;
    devices.camera("1").content("counter");
    devices.write();
    // Half a second of a reader that takes nothing: the sink holds one frame, the camera another one.
    Pipeline pipeline("orvanetestcamera device=1 ! appsink name=out max-buffers=1");
    CounterReading first;
    QVERIFY(readSample(pipeline.next().get(), &first));
    QTest::qWait(500);
    CounterReading later;
    for (int held = 0; held < 3; ++held)
        QVERIFY(readSample(pipeline.next().get(), &later));
    QVERIFY2(later.frame - first.frame >= 12, qPrintable(QString::number(later.frame - first.frame)));
}

void TestDevicesTest::flashAndBeepMeet()
{
    TestDevices devices;
    devices.camera("1").content("flash").formats("GRAY8 640x480 30");
    devices.microphone("2").sound("beep");
    devices.write();
    Pipeline pipeline("orvanetestcamera device=1 ! appsink name=picture "
                      "orvanetestmicrophone device=2 ! audio/x-raw,channels=1 ! audioconvert ! "
                      "audio/x-raw,format=U8 ! appsink name=sound");
    GstClockTime flash = GST_CLOCK_TIME_NONE;
    for (int frame = 0; frame < 60 && flash == GST_CLOCK_TIME_NONE; ++frame)
        flash = outstanding(pipeline.next("picture").get(), 0, 200);
    QVERIFY(flash != GST_CLOCK_TIME_NONE);
    // Two seconds of sound hold the beep that goes with the flash.
    qint64 nearest = GST_SECOND;
    for (int chunk = 0; chunk < 200; ++chunk) {
        const GstClockTime beep = outstanding(pipeline.next("sound").get(), 48000, 140);
        if (beep != GST_CLOCK_TIME_NONE)
            nearest = std::min<qint64>(nearest, std::abs(GST_CLOCK_DIFF(flash, beep)));
    }
    QVERIFY2(nearest < qint64(GST_MSECOND), qPrintable(QString::number(nearest)));
}

void TestDevicesTest::damagedFrames()
{
    TestDevices devices;
    devices.camera("1").damaged("2").formats("JPEG 640x480 30").content("solid");
    devices.write();
    Pipeline pipeline("orvanetestcamera device=1 ! appsink name=out");
    QVector<GBytes *> frames;
    for (int frame = 0; frame < 4; ++frame) {
        const Sample sample = pipeline.next();
        GstBuffer *buffer = gst_sample_get_buffer(sample.get());
        gpointer data = nullptr;
        gsize size = 0;
        gst_buffer_extract_dup(buffer, 0, gst_buffer_get_size(buffer), &data, &size);
        frames << g_bytes_new_take(data, size);
    }
    QVERIFY(g_bytes_equal(frames[0], frames[2]));
    QVERIFY(g_bytes_get_size(frames[1]) < g_bytes_get_size(frames[0]));
    QVERIFY(g_bytes_get_size(frames[3]) == g_bytes_get_size(frames[0]) &&
            !g_bytes_equal(frames[3], frames[0]));
    std::for_each(frames.begin(), frames.end(), g_bytes_unref);
}

QTEST_GUILESS_MAIN(TestDevicesTest)
#include "tst_testdevices.moc"
