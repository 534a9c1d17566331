#include "platform/h264coders.h"
#include "tests/platform/camerawindow.h"
#include "tests/platform/moviereader.h"

#include <QRegularExpression>

// Hardware is that of a plug-in of its own.
class TestH264Coders : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void usesAnEncoderWhileItIsGood();
    void usesADecoderWhileItIsGood();

private:
    QTemporaryDir m_folder;
};

static const QSize fullHd(1920, 1080);

static QByteArray encoderOf(const QSize &picture)
{
    return h264Encoder(picture).element;
}

static QByteArray decoder()
{
    return h264Decoder().element;
}

void TestH264Coders::initTestCase()
{
    qputenv("GST_PLUGIN_PATH", qgetenv("GST_PLUGIN_PATH") + ":" CODERS_FOLDER);
    qputenv("GST_REGISTRY_1_0", CODERS_FOLDER "/registry.bin");
    QVERIFY(gst_init_check(nullptr, nullptr, nullptr));
}

// Tried one after the other, from the first picture on. A movie with what was proven and fails ends, and is
// told; the next one has software.
void TestH264Coders::usesAnEncoderWhileItIsGood()
{
    TestDevices devices;
    devices.coder("vah264enc").fault("crashes");
    devices.coder("vah264lpenc").fault("hangs");
    devices.coder("v4l2h264enc");
    devices.coder("v4l2h264dec");
    devices.camera("cam").formats("YUY2 1280x720 15").content("counter");
    devices.microphone("mic");
    devices.write();
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^vah264enc is not used: It fails."));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^vah264lpenc is not used: It hangs"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^vah264dec is not used: .*There is no such"));
    CameraWindow camera;
    QVERIFY(camera.start());
    QTRY_COMPARE_WITH_TIMEOUT(encoderOf(fullHd), QByteArray("v4l2h264enc"), 60000);
    QCOMPARE(encoderOf({640, 480}), QByteArray("x264enc"));
    QTRY_COMPARE_WITH_TIMEOUT(decoder(), QByteArray("v4l2h264dec"), 60000); // the last of the trials
    distrust(h264Decoder());
    QCOMPARE(decoder(), QByteArray("avdec_h264"));
    QTRY_VERIFY(camera.capture.IsValidAudioDevice());

    const QString broken = m_folder.filePath("broken.mov");
    camera.capture.Record(broken);
    QVERIFY(camera.capture.IsRecording());
    QTest::qWait(2000);
    devices.setFault("v4l2h264enc", "fails");
    QTRY_COMPARE(camera.told.ended, MovieEnd::Failed);
    QTRY_VERIFY(!camera.capture.isFinishingMovie());
    QVERIFY(readMovie(broken).frames.size() > 15);
    QCOMPARE(encoderOf(fullHd), QByteArray("x264enc"));

    const QString whole = m_folder.filePath("whole.mov");
    camera.capture.Record(whole);
    QVERIFY(camera.capture.IsRecording());
    QTest::qWait(1000);
    camera.capture.RecordStop();
    QTRY_VERIFY(!camera.capture.isFinishingMovie());
    QVERIFY(readMovie(whole).isReadToItsEnd);
}

void TestH264Coders::usesADecoderWhileItIsGood()
{
    TestDevices devices;
    devices.coder("vah264enc").fault("wrong");
    devices.coder("vah264lpenc").fault("holds-back");
    devices.coder("v4l2h264enc").fault("costly");
    devices.coder("v4l2h264dec");
    devices.camera("cam").formats("H264 640x480 30");
    devices.write();
    QTest::ignoreMessage(QtWarningMsg, "vah264enc is not used: Its pictures are wrong.");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^vah264lpenc is not used: It hangs"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^v4l2h264enc is not used: It takes"));
    proveH264Hardware();
    QCOMPARE(encoderOf(fullHd), QByteArray("x264enc"));
    QCOMPARE(decoder(), QByteArray("v4l2h264dec"));

    CameraWindow camera;
    QVERIFY(camera.start());
    devices.setFault("v4l2h264dec", "fails");
    QTRY_COMPARE(camera.lost.size(), 1);
    QCOMPARE(decoder(), QByteArray("avdec_h264"));
    camera.capture.Release();
    QVERIFY(camera.start());
}

QTEST_MAIN(TestH264Coders)
#include "tst_h264coders.moc"
