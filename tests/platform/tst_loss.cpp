#include "platform/camerafault.h"
#include "platform/capturelog.h"
#include "tests/platform/camerawindow.h"

class TestLoss : public QObject
{
    Q_OBJECT

private slots:
    void tellsALossOnce();
    void doesNotWaitForACameraThatHangs();
    void opensASlowCamera();
    void tellsWhyACameraDoesNotOpen();
    void knowsTheFaultFromTheDriversWords();
};

static void breakOff(TestDevices *devices, const QString &camera, const QByteArray &fault)
{
    if (fault == "unplugged") {
        devices->pull(camera);
    } else if (fault == "damaged") {
        devices->camera(camera).set("damaged", "1"); // every frame
        devices->write();
    } else {
        devices->setFault(camera, fault);
    }
}

void TestLoss::tellsALossOnce()
{
    const struct {
        const char *order;
        const char *fault;
        CameraFault told;
    } table[] = {{"error-first", "unplugged", CameraFault::Unplugged},
                 {"removed-first", "unplugged", CameraFault::Unplugged},
                 {"removed-only", "unplugged", CameraFault::Unplugged},
                 {"error-only", "unplugged", CameraFault::Unplugged},
                 {"error-first", "stall", CameraFault::Silent},
                 {"error-first", "other-size", CameraFault::Silent},
                 {"error-first", "damaged", CameraFault::Silent},
                 {"error-first", "read-error", CameraFault::Failed},
                 {"error-first", "ends", CameraFault::Failed}};
    for (const auto &row : table) {
        const QByteArray name = QByteArray(row.fault) + ", " + row.order;
        TestDevices devices;
        // A camera whose going its provider never tells stays in the lists of later rows, hence the names.
        const bool isDamage = QByteArray(row.fault) == "damaged";
        devices.camera(name).name(name).order(row.order).formats(isDamage ? "JPEG 640x480 30"
                                                                          : "YUY2 640x480 30");
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

        // The movie is whole when the loss is told, or known not to be yet: its length stands at its end.
        qint64 movieSize = -1;
        bool isWhole = false;
        connect(&camera.capture, &LiveVideoData::disconnectDevice, this, [&] {
            isWhole = !camera.capture.isFinishingMovie();
            movieSize = QFileInfo(movie).size();
        });
        breakOff(&devices, name, row.fault);
        QVERIFY2(camera.lost.wait(10000), name);
        QVERIFY2(camera.told.lost == row.told && camera.told.ended == MovieEnd::CameraLost, name);
        QVERIFY2(movieSize > 0 && !camera.capture.IsValidVideoDevice(), name);
        QTest::qWait(400);
        QVERIFY2(!isWhole || QFileInfo(movie).size() == movieSize, name);
        QTRY_VERIFY2(!camera.capture.isFinishingMovie(), name);
        QVERIFY2(!camera.capture.SaveBitmap(folder.filePath("none.png")), name);
        QVERIFY2(camera.capture.lastPhotoFault() == PhotoFault::NoPicture, name);

        camera.capture.Release();
        devices.camera(name).set("damaged", "0").fault("");
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
            QVERIFY(clock.elapsed() < 1000);
            QVERIFY(camera.lost.wait(20000)); // a wait may end a twentieth early
            QVERIFY(clock.elapsed() > 14000 && camera.told.lost == CameraFault::NotAnswering);
            QVERIFY(!camera.capture.GetVideoDeviceList().contains("Bad"));
            clock.start();
        }
        camera.capture.Release();
        QVERIFY(clock.elapsed() < 1000);

        // Another camera does not suffer. Let go, this one counts again.
        camera.choose("Good");
        QVERIFY(camera.start());
        QCOMPARE(camera.capture.nativeWidth, 320);
        devices.setFault("bad", "");
        QTRY_VERIFY(camera.capture.GetVideoDeviceList().contains("Bad"));
    }
}

void TestLoss::opensASlowCamera()
{
    TestDevices devices;
    devices.camera("slow").name("Slow").opensAfter(6000);
    devices.write();
    CameraWindow camera;
    QTRY_VERIFY(camera.capture.GetVideoDeviceList().contains("Slow"));
    camera.choose("Slow");
    camera.capture.Create();
    camera.capture.Start();
    // Whoever needs a picture waits for it, but not for a second one.
    const QTemporaryDir folder;
    bool isSecondSaved = true;
    QTimer::singleShot(100, [&] { isSecondSaved = camera.capture.SaveBitmap(folder.filePath("2.png")); });
    Heartbeat heart;
    QVERIFY(camera.capture.SaveBitmap(folder.filePath("1.png")) && !isSecondSaved);
    QVERIFY2(heart.longest() < 100, qPrintable(QString::number(heart.longest())));
    QCOMPARE(camera.told.live, 1);
    QVERIFY(camera.lost.isEmpty());

    // Pulled out while it opens, it is lost at once, and nobody waits any longer.
    camera.capture.Release();
    camera.capture.Create();
    QElapsedTimer clock;
    clock.start();
    QTimer::singleShot(300, [&] { devices.pull("slow"); });
    QVERIFY(!camera.capture.SaveBitmap(folder.filePath("3.png")));
    QVERIFY(clock.elapsed() < 1000 && camera.told.lost == CameraFault::Unplugged);
}

void TestLoss::tellsWhyACameraDoesNotOpen()
{
    const struct {
        const char *fault;
        CameraFault told;
    } table[] = {{"busy", CameraFault::Busy},
                 {"no-permission", CameraFault::NoPermission},
                 {"no-bandwidth", CameraFault::NoBandwidth}};
    for (const auto &row : table) {
        TestDevices devices;
        devices.camera("cam").name(row.fault).fault(row.fault);
        devices.write();
        CameraWindow camera;
        QTRY_VERIFY(camera.capture.GetVideoDeviceList().contains(row.fault));
        camera.choose(row.fault);
        camera.capture.Create();
        camera.capture.Start();
        QVERIFY2(camera.lost.wait(1000), row.fault);
        QVERIFY2(camera.told.lost == row.told && camera.capture.canReopen(), row.fault);
        camera.capture.Release();
        devices.setFault("cam", "");
        QVERIFY2(QTest::qWaitFor([&] { return camera.start(); }), row.fault);
        QVERIFY2(camera.told.live == 1 && !camera.capture.canReopen(), row.fault);
    }
}

void TestLoss::knowsTheFaultFromTheDriversWords()
{
    const struct {
        const char *debug;
        int code;
        CameraFault fault;
    } table[] = {
        {nullptr, GST_RESOURCE_ERROR_BUSY, CameraFault::Busy},
        {"system error: Device or resource busy", GST_RESOURCE_ERROR_OPEN_READ, CameraFault::Busy},
        {nullptr, GST_RESOURCE_ERROR_NOT_AUTHORIZED, CameraFault::NoPermission},
        {"system error: Permission denied", GST_RESOURCE_ERROR_OPEN_READ_WRITE, CameraFault::NoPermission},
        {"STREAMON: No space left on device", GST_RESOURCE_ERROR_FAILED, CameraFault::NoBandwidth},
        {"Buffer pool activation failed", GST_RESOURCE_ERROR_SETTINGS, CameraFault::NoBandwidth},
        {nullptr, GST_RESOURCE_ERROR_NOT_FOUND, CameraFault::Unplugged},
        {"poll error 1: No such device (19)", GST_RESOURCE_ERROR_READ, CameraFault::Unplugged},
        {"poll error 1: Input/output error (5)", GST_RESOURCE_ERROR_READ, CameraFault::Failed},
        {nullptr, GST_RESOURCE_ERROR_FAILED, CameraFault::Failed},
    };
    for (const auto &row : table) {
        const ErrorHandle error(g_error_new_literal(GST_RESOURCE_ERROR, row.code, ""));
        QVERIFY2(cameraFault(error.get(), row.debug) == row.fault, row.debug ? row.debug : "code");
        QVERIFY(!errorText(error.get(), row.debug).isEmpty());
    }
}

QTEST_MAIN(TestLoss)
#include "tst_loss.moc"
