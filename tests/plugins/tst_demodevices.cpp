// The demo camera and microphone, found and opened as the program does it.
#include <QtTest>
#include <algorithm>
#include <gst/app/gstappsink.h>
#include <gst/gst.h>
#include <gst/video/video.h>
#include <map>
#include <memory>

namespace
{

struct Unref {
    void operator()(gpointer object) const { gst_object_unref(object); }
    void operator()(GstSample *sample) const { gst_sample_unref(sample); }
};
using Device = std::unique_ptr<GstDevice, Unref>;
using Sample = std::unique_ptr<GstSample, Unref>;

std::map<QString, Device> demoDevices()
{
    const std::unique_ptr<GstDeviceProvider, Unref> provider(
        gst_device_provider_factory_get_by_name("orvanedemoprovider"));
    std::map<QString, Device> devices;
    if (!provider)
        return devices;
    GList *list = gst_device_provider_get_devices(provider.get());
    for (GList *item = list; item; item = item->next) {
        gchar *name = gst_device_get_display_name(GST_DEVICE(item->data));
        devices[name] = Device(GST_DEVICE(item->data));
        g_free(name);
    }
    g_list_free(list);
    return devices;
}

// A running pipeline of the device's source and an appsink; given caps narrow the choice.
class Recording
{
public:
    Recording(GstDevice *device, const QString &caps)
        : pipeline_(gst_pipeline_new(nullptr)), sink_(gst_element_factory_make("appsink", nullptr))
    {
        GstElement *source = gst_device_create_element(device, nullptr);
        GstCaps *wanted = gst_caps_from_string(qPrintable(caps));
        gst_app_sink_set_caps(GST_APP_SINK(sink_), wanted);
        gst_caps_unref(wanted);
        gst_bin_add_many(GST_BIN(pipeline_.get()), source, sink_, nullptr);
        gst_element_link(source, sink_);
        gst_element_set_state(pipeline_.get(), GST_STATE_PLAYING);
    }
    ~Recording() { gst_element_set_state(pipeline_.get(), GST_STATE_NULL); }
    Recording(const Recording &) = delete;
    Recording &operator=(const Recording &) = delete;

    QByteArray next()
    {
        const Sample sample(gst_app_sink_try_pull_sample(GST_APP_SINK(sink_), 5 * GST_SECOND));
        if (!sample)
            return {};
        GstMapInfo map;
        gst_buffer_map(gst_sample_get_buffer(sample.get()), &map, GST_MAP_READ);
        QByteArray bytes(reinterpret_cast<const char *>(map.data), int(map.size));
        gst_buffer_unmap(gst_sample_get_buffer(sample.get()), &map);
        return bytes;
    }

private:
    std::unique_ptr<GstElement, Unref> pipeline_;
    GstElement *sink_;
};

} // namespace

class DemoDevicesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        gst_init(nullptr, nullptr);
        gst_registry_scan_path(gst_registry_get(), DEMO_PLUGIN_FOLDER);
    }
    void cameraShowsSomethingMoving();
    void microphoneIsHeard();
};

void DemoDevicesTest::cameraShowsSomethingMoving()
{
    const auto devices = demoDevices();
    QVERIFY(devices.count("Orvane Demo Camera"));
    for (const QSize size : {QSize(640, 480), QSize(1280, 720), QSize(1920, 1080)}) {
        Recording recording(devices.at("Orvane Demo Camera").get(),
                            QString("video/x-raw,format=YUY2,width=%1,height=%2,framerate=30/1")
                                .arg(size.width())
                                .arg(size.height()));
        const QByteArray first = recording.next();
        QCOMPARE(first.size(), size.width() * size.height() * 2);
        QByteArray later;
        for (int frame = 0; frame < 10; ++frame)
            later = recording.next();
        QCOMPARE(later.size(), first.size());
        int changed = 0;
        for (int byte = 0; byte < first.size(); ++byte)
            changed += first[byte] != later[byte];
        // The pencil and perhaps a second, while the page lies still.
        QVERIFY2(changed > first.size() / 1000 && changed < first.size() / 10,
                 qPrintable(QString::number(changed)));
    }
}

void DemoDevicesTest::microphoneIsHeard()
{
    const auto devices = demoDevices();
    QVERIFY(devices.count("Orvane Demo Microphone"));
    Recording recording(devices.at("Orvane Demo Microphone").get(),
                        "audio/x-raw,format=S16LE,rate=48000,channels=2");
    constexpr int bytesOfTwoSeconds = 2 * 48000 * 2 * 2;
    int loudest = 0;
    for (int heard = 0; heard < bytesOfTwoSeconds;) {
        const QByteArray sound = recording.next();
        QVERIFY(!sound.isEmpty());
        heard += sound.size();
        const auto *samples = reinterpret_cast<const qint16 *>(sound.constData());
        loudest = std::max<int>(loudest, *std::max_element(samples, samples + sound.size() / 2));
    }
    QVERIFY2(loudest > 500 && loudest < INT16_MAX / 8, qPrintable(QString::number(loudest)));
}

QTEST_GUILESS_MAIN(DemoDevicesTest)
#include "tst_demodevices.moc"
