#include "platform/capturemode.h"

#include <QTest>

class TestCaptureMode : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { gst_init(nullptr, nullptr); }
    void choosesTheNativeMode();
    void listsResolutions();
};

void TestCaptureMode::choosesTheNativeMode()
{
    const struct {
        const char *what;
        const char *caps;
        const char *chosen;
    } table[] = {
        {"the largest that is smooth, not the largest",
         "video/x-raw,format=YUY2,width=3840,height=2160,framerate=5/1;"
         "video/x-raw,format=YUY2,width=1920,height=1080,framerate={15/1,5/1};"
         "video/x-raw,format=YUY2,width=1280,height=720,framerate=30/1",
         "video/x-raw,width=1280,height=720,format=YUY2,framerate=30/1"},
        {"JPEG where raw is too slow",
         "video/x-raw,format=YUY2,width=1920,height=1080,framerate=5/1;"
         "image/jpeg,width=1920,height=1080,framerate={60/1,30/1,15/1}",
         "image/jpeg,width=1920,height=1080,framerate=30/1"},
        {"raw before JPEG at the same size and rate, cheap format first",
         "image/jpeg,width=1280,height=720,framerate=30/1;"
         "video/x-raw,format={BGR,YUY2,NV12},width=1280,height=720,framerate=30/1",
         "video/x-raw,width=1280,height=720,format=NV12,framerate=30/1"},
        {"none smooth: the largest",
         "video/x-raw,format=I420,width=640,height=480,framerate=15/1;"
         "video/x-raw,format=I420,width=1600,height=1200,framerate=10/1",
         "video/x-raw,width=1600,height=1200,format=I420,framerate=10/1"},
        {"smooth only where a page cannot be read",
         "video/x-raw,format=YUY2,width=640,height=480,framerate=30/1;"
         "video/x-raw,format=YUY2,width=1280,height=720,framerate=10/1;"
         "video/x-raw,format=YUY2,width=1920,height=1080,framerate=5/1",
         "video/x-raw,width=1280,height=720,format=YUY2,framerate=10/1"},
        {"24 frames a second and what is written so are smooth",
         "image/jpeg,width=1920,height=1080,framerate=24000/1001;"
         "image/jpeg,width=1280,height=720,framerate=30/1",
         "image/jpeg,width=1920,height=1080,framerate=24000/1001"},
        {"ranges of rates and sizes",
         "video/x-raw,format=UYVY,width=[2,2000],height=[2,1100],framerate=[1/1,60/1]",
         "video/x-raw,width=1920,height=1080,format=UYVY,framerate=30/1"},
        {"no rate told", "video/x-raw,format=YUY2,width=640,height=480",
         "video/x-raw,width=640,height=480,format=YUY2"},
        {"memory that only a graphics card reads",
         "video/x-raw(memory:DMABuf),format=NV12,width=1920,height=1080,framerate=30/1;"
         "video/x-raw,format=NV12,width=640,height=480,framerate=30/1",
         "video/x-raw,width=640,height=480,format=NV12,framerate=30/1"},
        {"no picture of use",
         "video/x-raw,format=GRAY8,width=640,height=480,framerate=30/1;video/x-bayer,width=640,height=480",
         nullptr},
    };
    for (const auto &row : table) {
        const CapsHandle offered(gst_caps_from_string(row.caps));
        const CaptureMode mode = nativeMode(captureModes(offered.get()));
        QVERIFY2(mode.isValid() == bool(row.chosen), row.what);
        if (!row.chosen)
            continue;
        const CapsHandle expected(gst_caps_from_string(row.chosen));
        const CapsHandle actual = fixedCaps(mode);
        QVERIFY2(gst_caps_is_equal(actual.get(), expected.get()), row.what);
        QVERIFY2(gst_caps_can_intersect(actual.get(), offered.get()), row.what);
    }
}

void TestCaptureMode::listsResolutions()
{
    const struct {
        const char *caps;
        QStringList resolutions;
    } table[] = {
        {"image/jpeg,width=1920,height=1080,framerate=30/1;"
         "video/x-raw,format=YUY2,width=640,height=480,framerate=30/1;"
         "image/jpeg,width=640,height=480,framerate=60/1",
         {"640x480", "1920x1080"}},
        {"video/x-raw,format=YUY2,width=[160,1280],height=[120,720],framerate=30/1",
         {"320x240", "640x480", "800x600", "1280x720"}},
    };
    for (const auto &row : table) {
        const CapsHandle offered(gst_caps_from_string(row.caps));
        QCOMPARE(resolutionNames(captureModes(offered.get())), row.resolutions);
    }
}

QTEST_GUILESS_MAIN(TestCaptureMode)
#include "tst_capturemode.moc"
