#include "platform/livevideodata.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <gst/gst.h>

// The demo camera and microphone, used as the program uses any others.
class TestDemoDevices : public QObject
{
    Q_OBJECT

private slots:
    void showsSomethingMovingAndIsHeard();
};

void TestDemoDevices::showsSomethingMovingAndIsHeard()
{
    gst_init(nullptr, nullptr);
    gst_registry_scan_path(gst_registry_get(), DEMO_PLUGIN_FOLDER);
    const QTemporaryDir folder;
    QWidget window;
    window.show();
    LiveVideoData capture;
    capture.SetTarget(&window);
    QTRY_COMPARE(capture.GetVideoDeviceList(), QStringList("Orvane Demo Camera"));
    capture.Create();
    capture.Start();
    QCOMPARE(capture.GetResoList(), (QStringList{"640x480", "1280x720", "1920x1080"}));
    QTRY_VERIFY(capture.IsValidVideoDevice() && capture.IsValidAudioDevice());
    QVERIFY(capture.SaveBitmap(folder.filePath("first.png")));
    capture.Record(folder.filePath("demo.mov"));
    QTest::qWait(2500);
    capture.RecordStop();
    QTRY_VERIFY(!capture.isFinishingMovie());
    QVERIFY(capture.SaveBitmap(folder.filePath("later.png")));

    const QImage first(folder.filePath("first.png"));
    const QImage later(folder.filePath("later.png"));
    QCOMPARE(first.size(), QSize(1920, 1080));
    int changed = 0;
    for (int y = 0; y < first.height(); y += 2) {
        for (int x = 0; x < first.width(); x += 2)
            changed += first.pixel(x, y) != later.pixel(x, y);
    }
    const int looked = first.width() * first.height() / 4;
    QVERIFY2(changed > looked / 1000 && changed < looked / 10, qPrintable(QString::number(changed)));

    QProcess meter;
    meter.start("ffmpeg", {"-i", folder.filePath("demo.mov"), "-af", "volumedetect", "-f", "null", "-"});
    QVERIFY(meter.waitForFinished());
    const QRegularExpression loudest("max_volume: (-?[\\d.]+) dB");
    const double decibels = loudest.match(meter.readAllStandardError()).captured(1).toDouble();
    QVERIFY2(decibels > -40 && decibels < -15, qPrintable(QString::number(decibels)));
}

QTEST_MAIN(TestDemoDevices)
#include "tst_demodevices.moc"
