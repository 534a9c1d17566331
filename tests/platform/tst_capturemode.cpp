#include "platform/capturemode.h"

#include <QtTest>

class TestCaptureMode : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { gst_init(nullptr, nullptr); }
    void choosesTheNativeMode_data();
    void choosesTheNativeMode();
    void listsResolutions_data();
    void listsResolutions();
};

void TestCaptureMode::choosesTheNativeMode_data()
{
    QTest::addColumn<QString>("caps");
    QTest::addColumn<QString>("chosen");
    QTest::newRow("the largest that is smooth, not the largest")
        << "video/x-raw,format=YUY2,width=3840,height=2160,framerate=5/1;"
           "video/x-raw,format=YUY2,width=1920,height=1080,framerate={15/1,5/1};"
           "video/x-raw,format=YUY2,width=1280,height=720,framerate=30/1"
        << "video/x-raw,width=1280,height=720,format=YUY2,framerate=30/1";
    QTest::newRow("JPEG where raw is too slow")
        << "video/x-raw,format=YUY2,width=1920,height=1080,framerate=5/1;"
           "image/jpeg,width=1920,height=1080,framerate={60/1,30/1,15/1}"
        << "image/jpeg,width=1920,height=1080,framerate=30/1";
    QTest::newRow("raw before JPEG at the same size and rate, cheap format first")
        << "image/jpeg,width=1280,height=720,framerate=30/1;"
           "video/x-raw,format={BGR,YUY2,NV12},width=1280,height=720,framerate=30/1"
        << "video/x-raw,width=1280,height=720,format=NV12,framerate=30/1";
    QTest::newRow("none smooth: the largest")
        << "video/x-raw,format=I420,width=640,height=480,framerate=15/1;"
           "video/x-raw,format=I420,width=1600,height=1200,framerate=10/1"
        << "video/x-raw,width=1600,height=1200,format=I420,framerate=10/1";
    QTest::newRow("24 frames a second and what is written so are smooth")
        << "image/jpeg,width=1920,height=1080,framerate=24000/1001;"
           "image/jpeg,width=1280,height=720,framerate=30/1"
        << "image/jpeg,width=1920,height=1080,framerate=24000/1001";
    QTest::newRow("ranges of rates and sizes")
        << "video/x-raw,format=UYVY,width=[160,1920],height=[120,1080],framerate=[1/1,60/1]"
        << "video/x-raw,width=1920,height=1080,format=UYVY,framerate=30/1";
    QTest::newRow("no rate told") << "video/x-raw,format=YUY2,width=640,height=480"
                                  << "video/x-raw,width=640,height=480,format=YUY2";
    QTest::newRow("memory that only a graphics card reads")
        << "video/x-raw(memory:DMABuf),format=NV12,width=1920,height=1080,framerate=30/1;"
           "video/x-raw,format=NV12,width=640,height=480,framerate=30/1"
        << "video/x-raw,width=640,height=480,format=NV12,framerate=30/1";
    QTest::newRow("no picture of use")
        << "video/x-raw,format=GRAY8,width=640,height=480,framerate=30/1;video/x-bayer,width=640,height=480"
        << "";
}

void TestCaptureMode::choosesTheNativeMode()
{
    QFETCH(QString, caps);
    QFETCH(QString, chosen);
    const CapsHandle offered(gst_caps_from_string(caps.toLatin1()));
    const CaptureMode mode = nativeMode(captureModes(offered.get(), true));
    QCOMPARE(mode.isValid(), !chosen.isEmpty());
    if (chosen.isEmpty())
        return;
    const CapsHandle expected(gst_caps_from_string(chosen.toLatin1()));
    const CapsHandle actual = fixedCaps(mode);
    const TextHandle text(gst_caps_to_string(actual.get()));
    QVERIFY2(gst_caps_is_equal(actual.get(), expected.get()), text.get());
    QVERIFY(gst_caps_can_intersect(actual.get(), offered.get()));
}

void TestCaptureMode::listsResolutions_data()
{
    QTest::addColumn<QString>("caps");
    QTest::addColumn<QStringList>("resolutions");
    QTest::newRow("each once, smallest first")
        << "image/jpeg,width=1920,height=1080,framerate=30/1;"
           "video/x-raw,format=YUY2,width=640,height=480,framerate=30/1;"
           "image/jpeg,width=640,height=480,framerate=60/1"
        << QStringList({"640x480", "1920x1080"});
    QTest::newRow("a range gives its ends and the usual sizes between")
        << "video/x-raw,format=YUY2,width=[160,1280],height=[120,720],framerate=30/1"
        << QStringList({"160x120", "320x240", "640x480", "800x600", "1280x720"});
    QTest::newRow("H.264 without a decoder")
        << "video/x-h264,width=640,height=480,framerate=30/1" << QStringList();
}

void TestCaptureMode::listsResolutions()
{
    QFETCH(QString, caps);
    const CapsHandle offered(gst_caps_from_string(caps.toLatin1()));
    QTEST(resolutionNames(captureModes(offered.get(), false)), "resolutions");
}

QTEST_GUILESS_MAIN(TestCaptureMode)
#include "tst_capturemode.moc"
