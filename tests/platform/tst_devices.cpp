#include "tests/platform/camerawindow.h"

#include <QElapsedTimer>

class TestDeviceLists : public QObject
{
    Q_OBJECT

private slots:
    void listsEachCameraOnce();
    void leavesOutWhatIsNoCamera();
    void knowsMicrophonesFromMonitors();
    void keepsTheChoiceWhenOthersGo();
    void findsTheChosenCameraAgain();
    void opensTheFirstWhileTheChosenOneIsAway();
};

void TestDeviceLists::listsEachCameraOnce()
{
    TestDevices devices;
    // The same piece of hardware as the kernel lists it and as a picture server does.
    devices.camera("a1")
        .provider("b")
        .name("Board Cam")
        .formats("YUY2 640x480 30")
        .property("api.v4l2.path", "/dev/video4")
        .property("device.bus_path", "usb-1");
    devices.camera("a2")
        .provider("a")
        .name("Board Cam: direct")
        .formats("YUY2 640x480 30")
        .property("device.path", "/dev/video4")
        .property("device.bus_path", "usb-1");
    // Two of one make, without a serial number, at two sockets.
    devices.camera("t1")
        .name("Twin")
        .formats("YUY2 640x480 30")
        .property("device.bus_path", "usb-2")
        .property("device.product.id", "77");
    devices.camera("t2")
        .name("Twin")
        .formats("YUY2 640x480 30")
        .property("device.bus_path", "usb-3")
        .property("device.product.id", "77");
    // And two that tell nothing of themselves.
    devices.camera("n1").name("Nameless").formats("YUY2 640x480 30").noProperties();
    devices.camera("n2").name("Nameless").formats("YUY2 640x480 30").noProperties();
    devices.write();

    LiveVideoData capture;
    QStringList expected({"Board Cam: direct", "Nameless", "Nameless", "Twin", "Twin"});
    const auto listed = [&capture] {
        QStringList names = capture.GetVideoDeviceList();
        names.sort();
        return names;
    };
    QTRY_COMPARE(listed(), expected);

    // The list is of this moment, and costs nothing.
    devices.pull("t1");
    expected.removeLast();
    QTRY_COMPARE(listed(), expected);
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 100; ++i)
        capture.GetVideoDeviceList();
    QVERIFY(clock.elapsed() < 500);
}

void TestDeviceLists::leavesOutWhatIsNoCamera()
{
    TestDevices devices;
    devices.camera("grey").name("Camera").formats("GRAY8 640x360 30");
    devices.camera("ir").name("Notebook Camera IR").formats("YUY2 640x360 30");
    devices.camera("good").name("Notebook Camera").formats("GRAY8 640x360 30;YUY2 640x360 30");
    devices.write();
    LiveVideoData capture;
    QTRY_COMPARE(capture.GetVideoDeviceList(), QStringList("Notebook Camera"));
}

void TestDeviceLists::knowsMicrophonesFromMonitors()
{
    TestDevices devices;
    devices.camera("cam").formats("YUY2 640x480 30");
    devices.microphone("loudspeaker").monitor();
    devices.write();
    LiveVideoData capture;
    // Listed in one go with the camera.
    QTRY_COMPARE(capture.GetVideoDeviceList().size(), 1);
    QVERIFY(!capture.IsValidAudioDevice());
    devices.microphone("real");
    devices.write();
    QTRY_VERIFY(capture.IsValidAudioDevice());
    devices.pull("real");
    QTRY_VERIFY(!capture.IsValidAudioDevice());
}

void TestDeviceLists::keepsTheChoiceWhenOthersGo()
{
    TestDevices devices;
    devices.camera("first").name("First").formats("YUY2 640x480 30");
    devices.camera("second").name("Second").formats("YUY2 320x240 30");
    devices.write();
    CameraWindow camera;
    QSignalSpy lost(&camera.capture, &LiveVideoData::disconnectDevice);
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 2);
    camera.capture.SetVideoDevice(camera.capture.GetVideoDeviceList().indexOf("Second"));
    QVERIFY(camera.start());
    QCOMPARE(camera.capture.nativeWidth, 320);

    devices.pull("first");
    QTRY_COMPARE(camera.capture.GetVideoDeviceList(), QStringList("Second"));
    QVERIFY(camera.capture.IsValidVideoDevice());
    camera.capture.SetVideoDevice(5);
    devices.plug("first");
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 2);
    camera.capture.Release();
    camera.capture.Create();
    QCOMPARE(camera.capture.nativeWidth, 320);
    QCOMPARE(lost.count(), 0);
}

void TestDeviceLists::findsTheChosenCameraAgain()
{
    TestDevices devices;
    devices.camera("first").name("First").formats("YUY2 640x480 30").property("device.path", "/dev/video0");
    devices.camera("second").name("Second").formats("YUY2 320x240 30").property("device.path", "/dev/video1");
    devices.write();
    CameraWindow camera;
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 2);
    camera.capture.SetVideoDevice(camera.capture.GetVideoDeviceList().indexOf("Second"));
    QVERIFY(camera.start());

    // Both come back, and the kernel gives them each other's nodes; one is in another socket now.
    devices.pull("second");
    devices.pull("first");
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 0);
    camera.capture.Release();
    devices.camera("first").property("device.path", "/dev/video1");
    devices.camera("second").property("device.path", "/dev/video0").property("device.bus_path", "usb-9");
    devices.plug("first");
    devices.plug("second");
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 2);
    QVERIFY(camera.start());
    QCOMPARE(camera.capture.nativeWidth, 320);
}

void TestDeviceLists::opensTheFirstWhileTheChosenOneIsAway()
{
    TestDevices devices;
    devices.camera("own").name("Veltrix CX-20").formats("YUY2 320x240 30");
    devices.camera("web").name("Webcam").formats("YUY2 640x480 30");
    devices.write();
    CameraWindow camera;
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 2);
    camera.capture.SetVideoDevice(camera.capture.GetVideoDeviceList().indexOf("Veltrix CX-20"));
    QVERIFY(camera.start());
    QVERIFY(camera.capture.isVeltrixCam);
    devices.pull("own");
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 1);
    camera.capture.Release();
    QVERIFY(camera.start());
    QVERIFY(!camera.capture.isVeltrixCam);
    QCOMPARE(camera.capture.nativeWidth, 640);
    devices.pull("web");
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 0);
    camera.capture.Release();
    camera.capture.Create();
    QVERIFY(camera.capture.supported && !camera.capture.hasVideoDevice && !camera.capture.created);
}

QTEST_MAIN(TestDeviceLists)
#include "tst_devices.moc"
