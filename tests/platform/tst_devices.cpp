#include "tests/platform/camerawindow.h"

#include <QDeadlineTimer>
#include <QSaveFile>
#include <QThread>

class TestDeviceLists : public QObject
{
    Q_OBJECT

private slots:
    void startsAProviderAgain();
    void knowsTwinsThatAreListedAnew();
    void listsEachCameraOnceAndNothingElse();
    void knowsMicrophonesFromMonitors();
    void keepsTheChoice();
    void opensTheFirstWhileTheChosenOneIsAway();
    void takesTheSameCameraAgain();
};

// It says so by new files in the user's run folder.
static void startServer()
{
    const QDir folder(qEnvironmentVariable("XDG_RUNTIME_DIR"));
    folder.mkpath("pulse");
    QSaveFile server(folder.filePath("pulse/pid"));
    QVERIFY(server.open(QIODevice::WriteOnly) && server.commit());
}

// The first of all tests, as providers are followed for as long as the process runs.
void TestDeviceLists::startsAProviderAgain()
{
    TestDevices devices;
    devices.provider("b").fault("refuses");
    devices.camera("direct").name("Direct");
    devices.camera("served").name("Served").provider("b");
    devices.write();
    CameraWindow camera;
    QVERIFY(camera.lists({"Direct"}));
    devices.setFault("b", "");
    QVERIFY(camera.lists({"Direct", "Served"}));
    // Its server ends, and a new one begins.
    devices.setFault("b", "dead");
    devices.camera("new").name("New").provider("b");
    devices.pull("served");
    QTest::qWait(100);
    QVERIFY(camera.lists({"Direct", "Served"}));
    devices.setFault("b", "");
    startServer();
    QVERIFY(camera.lists({"Direct", "New"}));
}

// By a server that tells of their nodes alone.
void TestDeviceLists::knowsTwinsThatAreListedAnew()
{
    TestDevices devices;
    devices.camera("a").name("Twin").property("api.v4l2.path", "/dev/video8");
    devices.camera("b").name("Twin").property("api.v4l2.path", "/dev/video9").formats("YUY2 320x240 30");
    devices.write();
    CameraWindow camera;
    QVERIFY(camera.lists({"Twin", "Twin 2"}));
    camera.choose("Twin 2");
    QVERIFY(camera.start());
    int changes = camera.told.changes;
    const auto isListedAnew = [&] { return camera.told.changes > changes; };
    startServer();
    QTRY_VERIFY(isListedAnew());
    camera.capture.Release();
    QVERIFY(camera.start());
    QCOMPARE(camera.capture.nativeWidth, 320);
    devices.pull("b");
    QTRY_COMPARE(camera.lost.count(), 1);
    camera.capture.Release();
    QVERIFY(camera.lists({"Twin"}));
    changes = camera.told.changes;
    startServer();
    QTRY_VERIFY(isListedAnew());
    QVERIFY(!camera.capture.canReopen());
}

void TestDeviceLists::listsEachCameraOnceAndNothingElse()
{
    TestDevices devices;
    // The same piece of hardware as a picture server lists it and as the kernel does.
    devices.camera("served").provider("b").name("Board Cam");
    devices.camera("served").property("api.v4l2.path", "/dev/video4").property("device.bus_path", "usb-1");
    devices.camera("direct").provider("a").name("Board Cam: direct");
    devices.camera("direct").property("device.path", "/dev/video4").property("device.bus_path", "usb-1");
    // As libcamera calls a USB camera, beside the kernel's name for its socket.
    devices.camera("own way").provider("b").name("Desk Cam, by itself");
    devices.camera("own way").property("api.libcamera.path", "SB_.PCI0.XHC_.RHUB.HS06-6:1.0-046d:0825");
    devices.camera("own way").property("object.path", "libcamera:SB_.PCI0.XHC_.RHUB.HS06-6:1.0-046d:0825");
    devices.camera("kernel's").name("Desk Cam").property("device.path", "/dev/video6");
    devices.camera("kernel's").property("device.bus_path", "pci-0000:00:14.0-usb-0:6:1.0");
    devices.camera("kernel's").property("device.vendor.id", "0x046d").property("device.product.id", "0825");
    // Two of one make, without a serial number, at two sockets, and two that tell nothing of themselves.
    for (const char *socket : {"usb-2", "usb-3"})
        devices.camera(socket)
            .name("Twin")
            .property("device.bus_path", socket)
            .property("device.product.id", "7");
    devices.camera("n1").name("Nameless");
    devices.camera("n2").name("Nameless");
    // And the infrared halves of notebooks' cameras.
    devices.camera("grey").name("Camera").formats("GRAY8 640x360 30");
    devices.camera("ir").name("Notebook Camera IR");
    devices.camera("good").name("Notebook Camera").formats("GRAY8 640x360 30;YUY2 640x360 30");
    devices.write();

    CameraWindow camera;
    QVERIFY(camera.lists(
        {"Board Cam: direct", "Desk Cam", "Nameless", "Nameless 2", "Notebook Camera", "Twin", "Twin 2"}));
    // The list is of this moment, and costs nothing.
    devices.pull("usb-2");
    QVERIFY(
        camera.lists({"Board Cam: direct", "Desk Cam", "Nameless", "Nameless 2", "Notebook Camera", "Twin"}));
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 100; ++i)
        camera.capture.GetVideoDeviceList();
    QVERIFY(clock.elapsed() < 500);
}

void TestDeviceLists::knowsMicrophonesFromMonitors()
{
    TestDevices devices;
    devices.camera("cam").name("Camera");
    devices.microphone("loudspeaker").property("device.class", "monitor");
    devices.write();
    CameraWindow camera;
    // Listed in one go with the camera.
    QVERIFY(camera.lists({"Camera"}));
    QVERIFY(!camera.capture.IsValidAudioDevice());
    devices.microphone("real");
    devices.write();
    QTRY_VERIFY(camera.capture.IsValidAudioDevice());
    devices.pull("real");
    QTRY_VERIFY(!camera.capture.IsValidAudioDevice());
}

// While the program is too busy to be told.
static bool listsUnseen(CameraWindow &camera, int count)
{
    const QDeadlineTimer limit(5000);
    while (camera.capture.GetVideoDeviceList().size() != count && !limit.hasExpired())
        QThread::msleep(10);
    return camera.capture.GetVideoDeviceList().size() == count;
}

void TestDeviceLists::keepsTheChoice()
{
    TestDevices devices;
    devices.camera("first").name("First").property("device.path", "/dev/video0");
    devices.camera("second").name("Second").formats("YUY2 320x240 30").property("device.path", "/dev/video1");
    devices.write();
    CameraWindow camera;
    QVERIFY(camera.lists({"First", "Second"}));
    camera.choose("Second");
    QVERIFY(camera.start());
    QCOMPARE(camera.capture.nativeWidth, 320);

    // Another one goes and comes back.
    devices.pull("first");
    QVERIFY(camera.lists({"Second"}));
    QVERIFY(camera.capture.IsValidVideoDevice());
    camera.capture.SetVideoDevice(5);
    devices.plug("first");
    QVERIFY(camera.lists({"First", "Second"}));
    camera.capture.Release();
    QVERIFY(camera.start());
    QCOMPARE(camera.capture.nativeWidth, 320);
    QCOMPARE(camera.lost.count(), 0);

    // Both come back before their going was seen to, and the kernel gives them each other's nodes; one is in
    // another socket now.
    devices.pull("second");
    QTRY_COMPARE(camera.lost.count(), 1);
    devices.pull("first");
    QVERIFY(listsUnseen(camera, 0));
    devices.camera("first").property("device.path", "/dev/video1");
    devices.camera("second").property("device.path", "/dev/video0").property("device.bus_path", "usb-9");
    devices.plug("first");
    devices.plug("second");
    QVERIFY(listsUnseen(camera, 2));
    QCoreApplication::processEvents();
    camera.capture.Release();
    QVERIFY(camera.start());
    QCOMPARE(camera.capture.nativeWidth, 320);
}

void TestDeviceLists::opensTheFirstWhileTheChosenOneIsAway()
{
    TestDevices devices;
    devices.camera("own").name("Veltrix CX-20");
    devices.camera("web").name("Webcam").formats("YUY2 320x240 30");
    devices.write();
    CameraWindow camera;
    QVERIFY(camera.lists({"Veltrix CX-20", "Webcam"}));
    camera.choose("Veltrix CX-20");
    QVERIFY(camera.start());
    QVERIFY(camera.capture.isVeltrixCam);
    devices.pull("own");
    QVERIFY(camera.lists({"Webcam"}));
    camera.capture.Release();
    QVERIFY(camera.start());
    QVERIFY(!camera.capture.isVeltrixCam && camera.capture.nativeWidth == 320);
    devices.pull("web");
    QVERIFY(camera.lists({}));
    camera.capture.Release();
    camera.capture.Create();
    QVERIFY(camera.capture.supported && !camera.capture.hasVideoDevice && !camera.capture.created);
}

// Two of one make are told apart by what was there all the time.
void TestDeviceLists::takesTheSameCameraAgain()
{
    TestDevices devices;
    devices.camera("b").name("Twin").property("device.bus_path", "usb-1");
    devices.camera("a").name("Twin").property("device.bus_path", "usb-2").formats("YUY2 320x240 30");
    devices.write();
    CameraWindow camera;
    QVERIFY(camera.lists({"Twin", "Twin 2"}));
    camera.choose("Twin 2");
    QVERIFY(camera.start());
    QCOMPARE(camera.capture.nativeWidth, 320);
    for (const char *socket : {"usb-2", "usb-7"}) {
        const int losses = camera.lost.count();
        devices.pull("a");
        QTRY_COMPARE(camera.lost.count(), losses + 1);
        camera.capture.Release();
        QVERIFY(camera.lists({"Twin"}));
        QVERIFY2(!camera.capture.canReopen(), socket);
        const int changes = camera.told.changes;
        devices.camera("a").property("device.bus_path", socket);
        devices.plug("a");
        QTRY_VERIFY2(camera.told.changes > changes && camera.capture.canReopen(), socket);
        QVERIFY(camera.start());
        QCOMPARE(camera.capture.nativeWidth, 320);
    }
    // While it stays away any other that comes will do.
    devices.pull("a");
    QTRY_COMPARE(camera.lost.count(), 3);
    camera.capture.Release();
    QVERIFY(camera.lists({"Twin"}));
    devices.camera("c").name("Other");
    devices.write();
    QTRY_VERIFY(camera.capture.canReopen());
    QVERIFY(camera.start());
    QCOMPARE(camera.capture.nativeWidth, 640);
}

QTEST_MAIN(TestDeviceLists)
#include "tst_devices.moc"
