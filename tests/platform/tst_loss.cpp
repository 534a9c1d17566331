#include "tests/platform/camerawindow.h"

class TestLoss : public QObject
{
    Q_OBJECT

private slots:
    void tellsALossOnce();
    void doesNotWaitForACameraThatHangs();
    void tellsThatACameraIsBusy();
};

void TestLoss::tellsALossOnce()
{
    const struct {
        const char *order;
        const char *fault;
    } table[] = {{"error-first", "unplugged"}, {"removed-first", "unplugged"}, {"removed-only", "unplugged"},
                 {"error-only", "unplugged"},  {"error-first", "stall"},       {"error-first", "read-error"}};
    for (const auto &row : table) {
        const QByteArray name = QByteArray(row.fault) + ", " + row.order;
        TestDevices devices;
        // A camera whose going its provider never tells stays in the lists of later rows, hence the names.
        devices.camera(name).name(name).order(row.order);
        devices.microphone("mic");
        devices.write();
        CameraWindow camera;
        QTRY_VERIFY2(camera.capture.GetVideoDeviceList().contains(name), name);
        camera.choose(name);
        QVERIFY2(camera.start(), name);
        const QTemporaryDir folder;
        const QString movie = folder.filePath("lost.mov");
        camera.capture.Record(movie);
        QTest::qWait(500);

        // The movie is whole when the loss is told: its length stands at its end.
        qint64 movieSize = -1;
        connect(&camera.capture, &LiveVideoData::disconnectDevice, this,
                [&] { movieSize = QFileInfo(movie).size(); });
        const bool isUnplugged = QByteArray(row.fault) == "unplugged";
        if (isUnplugged)
            devices.pull(name);
        else
            devices.setFault(name, row.fault);
        QVERIFY2(camera.lost.wait(4500), name);
        QVERIFY2(movieSize > 0 && !camera.capture.IsValidVideoDevice(), name);
        QTest::qWait(400);
        QCOMPARE(QFileInfo(movie).size(), movieSize);
        QVERIFY2(!camera.capture.SaveBitmap(folder.filePath("none.png")), name);

        camera.capture.Release();
        devices.setFault(name, "");
        devices.plug(name);
        QTRY_VERIFY2(camera.capture.GetVideoDeviceList().contains(name), name);
        QVERIFY2(camera.start(), name);
        QVERIFY2(camera.lost.count() == 1, name);
    }
}

void TestLoss::doesNotWaitForACameraThatHangs()
{
    for (const bool hangsOpening : {true, false}) {
        TestDevices devices;
        devices.camera("bad").name("Bad");
        devices.camera("good").name("Good").formats("YUY2 320x240 30");
        devices.write();
        CameraWindow camera;
        QTRY_VERIFY(camera.capture.GetVideoDeviceList().contains("Bad"));
        camera.choose("Bad");
        if (!hangsOpening)
            QVERIFY(camera.start());
        devices.setFault("bad", hangsOpening ? "hang-open" : "hang-close");
        QTest::qWait(100);
        QElapsedTimer clock;
        clock.start();
        if (hangsOpening) {
            camera.capture.Create();
            camera.capture.Start();
            QVERIFY(clock.elapsed() < 100);
            QVERIFY(camera.lost.wait(4500));
            QVERIFY(!camera.capture.GetVideoDeviceList().contains("Bad"));
            clock.start();
        }
        camera.capture.Release();
        QVERIFY(clock.elapsed() < 100);

        // Another camera does not suffer. Let go, this one counts again.
        camera.choose("Good");
        QVERIFY(camera.start());
        QCOMPARE(camera.capture.nativeWidth, 320);
        devices.setFault("bad", "");
        QTRY_VERIFY(camera.capture.GetVideoDeviceList().contains("Bad"));
    }
}

void TestLoss::tellsThatACameraIsBusy()
{
    TestDevices devices;
    devices.camera("cam").name("Busy").fault("busy");
    devices.write();
    CameraWindow camera;
    QTRY_VERIFY(camera.capture.GetVideoDeviceList().contains("Busy"));
    camera.choose("Busy");
    camera.capture.Create();
    camera.capture.Start();
    QVERIFY(camera.lost.wait(1000));
    camera.capture.Release();
    devices.setFault("cam", "");
    QVERIFY(QTest::qWaitFor([&] { return camera.start(); }));
}

QTEST_MAIN(TestLoss)
#include "tst_loss.moc"
