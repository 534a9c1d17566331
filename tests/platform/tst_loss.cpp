#include "tests/platform/camerawindow.h"

#include <QElapsedTimer>

class TestLoss : public QObject
{
    Q_OBJECT

private slots:
    void tellsALossOnce_data();
    void tellsALossOnce();
    void doesNotWaitForACameraThatHangs_data();
    void doesNotWaitForACameraThatHangs();
    void tellsThatACameraIsBusy();
};

void TestLoss::tellsALossOnce_data()
{
    QTest::addColumn<QString>("order");
    QTest::addColumn<QString>("fault");
    QTest::newRow("unplugged, the stream's error first") << "error-first"
                                                         << "";
    QTest::newRow("unplugged, the provider first") << "removed-first"
                                                   << "";
    QTest::newRow("unplugged, only the provider tells") << "removed-only"
                                                        << "";
    QTest::newRow("unplugged, only the stream tells") << "error-only"
                                                      << "";
    QTest::newRow("silent for three seconds") << "error-first"
                                              << "stall";
    QTest::newRow("an error of the source") << "error-first"
                                            << "read-error";
}

void TestLoss::tellsALossOnce()
{
    QFETCH(QString, order);
    QFETCH(QString, fault);
    TestDevices devices;
    devices.camera("cam").formats("YUY2 640x480 30").order(order);
    devices.microphone("mic");
    devices.write();
    CameraWindow camera;
    QSignalSpy lost(&camera.capture, &LiveVideoData::disconnectDevice);
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 1);
    QVERIFY(camera.start());
    const QString movie = QDir::temp().filePath("lost.mov");
    camera.capture.Record(movie);
    QTest::qWait(500);

    // The movie is whole when the loss is told: its length stands at its end.
    qint64 movieSize = -1;
    connect(&camera.capture, &LiveVideoData::disconnectDevice, this,
            [&] { movieSize = QFileInfo(movie).size(); });
    if (fault.isEmpty())
        devices.pull("cam");
    else
        devices.setFault("cam", fault);
    QVERIFY(lost.wait(4500));
    QVERIFY(movieSize > 0);
    QVERIFY(!camera.capture.IsValidVideoDevice());
    QTest::qWait(400);
    QCOMPARE(lost.count(), 1);
    QCOMPARE(QFileInfo(movie).size(), movieSize);
    QVERIFY(!camera.capture.SaveBitmap(QDir::temp().filePath("none.png")));

    camera.capture.Release();
    devices.setFault("cam", "none");
    devices.plug("cam");
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 1);
    QVERIFY(camera.start());
    QCOMPARE(lost.count(), 1);
    QFile::remove(movie);
    // A camera whose going its provider never tells would stay in the lists of the tests to come.
    devices.camera("cam").name("Told of").order("error-first");
    devices.write();
    QTRY_COMPARE(camera.capture.GetVideoDeviceList(), QStringList("Told of"));
}

void TestLoss::doesNotWaitForACameraThatHangs_data()
{
    QTest::addColumn<QString>("fault");
    QTest::newRow("while it is opened") << "hang-open";
    QTest::newRow("while it is closed") << "hang-close";
}

void TestLoss::doesNotWaitForACameraThatHangs()
{
    QFETCH(QString, fault);
    TestDevices devices;
    devices.camera("bad").name("Bad").formats("YUY2 640x480 30");
    devices.camera("good").name("Good").formats("YUY2 320x240 30");
    devices.write();
    CameraWindow camera;
    QSignalSpy lost(&camera.capture, &LiveVideoData::disconnectDevice);
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 2);
    camera.capture.SetVideoDevice(camera.capture.GetVideoDeviceList().indexOf("Bad"));

    const bool hangsOpening = fault == QLatin1String("hang-open");
    if (!hangsOpening)
        QVERIFY(camera.start());
    devices.setFault("bad", fault);
    QTest::qWait(100);
    QElapsedTimer clock;
    clock.start();
    if (hangsOpening) {
        camera.capture.Create();
        camera.capture.Start();
        QVERIFY(clock.elapsed() < 100);
        QVERIFY(lost.wait(4500));
        QCOMPARE(camera.capture.GetVideoDeviceList(), QStringList("Good"));
        clock.start();
    }
    camera.capture.Release();
    QVERIFY(clock.elapsed() < 100);

    // Another camera does not suffer.
    const int good = camera.capture.GetVideoDeviceList().indexOf("Good");
    camera.capture.SetVideoDevice(good);
    QVERIFY(camera.start());
    QCOMPARE(camera.capture.nativeWidth, 320);

    // Let go, the camera counts again.
    devices.setFault("bad", "none");
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 2);
}

void TestLoss::tellsThatACameraIsBusy()
{
    TestDevices devices;
    devices.camera("cam").formats("YUY2 640x480 30").fault("busy");
    devices.write();
    CameraWindow camera;
    QSignalSpy lost(&camera.capture, &LiveVideoData::disconnectDevice);
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 1);
    camera.capture.Create();
    camera.capture.Start();
    QVERIFY(lost.wait(1000));
    camera.capture.Release();
    devices.setFault("cam", "none");
    QTest::qWait(100);
    QVERIFY(camera.start());
}

QTEST_MAIN(TestLoss)
#include "tst_loss.moc"
