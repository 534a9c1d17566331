#include "tests/platform/camerawindow.h"
#include "tests/support/smalldisk.h"

#include <QProcess>
#include <QStorageInfo>

class TestStill : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void savesTheCamerasFullSize_data();
    void savesTheCamerasFullSize();
    void savesWhatZoomShows();
    void passesOverDamagedFrames();
    void waitsForTheFirstFrame();
    void leavesNothingOnAFullDisk();
    void leavesOnlyWholePhotosWhenKilled();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestStill::savesTheCamerasFullSize_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QSize>("size");
    QTest::newRow("raw") << "YUY2 1920x1080 30" << QSize(1920, 1080);
    QTest::newRow("JPEG") << "JPEG 1280x720 30" << QSize(1280, 720);
    QTest::newRow("width that is no multiple of four") << "I420 322x242 30" << QSize(322, 242);
}

void TestStill::savesTheCamerasFullSize()
{
    QFETCH(QString, format);
    QFETCH(QSize, size);
    TestDevices devices;
    devices.camera("cam").formats(format).content("counter");
    devices.write();
    CameraWindow camera(QSize(320, 240));
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 1);
    QVERIFY(camera.start());

    const qint64 pressed = nowMicroseconds();
    QVERIFY(camera.capture.SaveBitmap(path("photo1.png")));
    const QImage image(path("photo1.png"));
    QCOMPARE(image.size(), size);
    CounterReading reading;
    QVERIFY(CameraWindow::read(image, image.rect(), &reading));
    QVERIFY2(pressed - reading.capturedUs < 100000, "not the newest frame");

    // Another reader than Qt's, which checks every sum.
    QProcess reader;
    reader.start("ffmpeg", {"-v", "error", "-xerror", "-err_detect", "crccheck+explode", "-i",
                            path("photo1.png"), "-f", "null", "-"});
    QVERIFY(reader.waitForFinished());
    QCOMPARE(reader.exitCode(), 0);
    QCOMPARE(reader.readAllStandardError(), QByteArray());
}

void TestStill::savesWhatZoomShows()
{
    TestDevices devices;
    devices.camera("cam").formats("YUY2 640x480 30").content("quarters");
    devices.write();
    CameraWindow camera(QSize(640, 480));
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 1);
    QVERIFY(camera.start());
    QVERIFY(camera.capture.SaveBitmap(path("whole.png")));
    for (int i = 0; i < 3; ++i)
        camera.capture.ZoomIn();
    const double factor = 1.25 * 1.25 * 1.25;
    QVERIFY(camera.capture.SaveBitmap(path("zoomed.png")));
    const QImage whole(path("whole.png"));
    const QImage zoomed(path("zoomed.png"));
    QCOMPARE(zoomed.size(), whole.size());
    QTRY_VERIFY(qAbs(qGray(camera.screen().pixel(200, 150)) - qGray(zoomed.pixel(200, 150))) < 12);

    // Each pixel of the photo is the one that far from the centre of the whole; some differ at edges.
    int unlike = 0;
    int looked = 0;
    for (int y = 4; y < 480; y += 16) {
        for (int x = 4; x < 640; x += 16, ++looked) {
            const QPoint source(int(320 + (x - 320) / factor), int(240 + (y - 240) / factor));
            unlike += qAbs(qGray(zoomed.pixel(x, y)) - qGray(whole.pixel(source))) > 24;
            unlike += qAbs(qGray(camera.screen().pixel(x, y)) - qGray(zoomed.pixel(x, y))) > 24;
        }
    }
    QVERIFY2(unlike < looked / 20, qPrintable(QString("%1 of %2").arg(unlike).arg(looked)));
}

void TestStill::passesOverDamagedFrames()
{
    TestDevices devices;
    devices.camera("cam").formats("JPEG 640x480 30").content("counter").damaged("2");
    devices.write();
    CameraWindow camera;
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 1);
    QVERIFY(camera.start());
    for (int i = 0; i < 12; ++i) {
        QVERIFY(camera.capture.SaveBitmap(path(QString("photo%1.png").arg(i))));
        const QImage image(path(QString("photo%1.png").arg(i)));
        CounterReading reading;
        QVERIFY(CameraWindow::read(image, image.rect(), &reading));
        QTest::qWait(11);
    }
    // A camera that never sends a whole one still gives a photo.
    devices.camera("cam").damaged("1");
    devices.write();
    QTRY_VERIFY(camera.capture.SaveBitmap(path(QString("bad%1.png").arg(nowMicroseconds()))));
}

void TestStill::waitsForTheFirstFrame()
{
    TestDevices devices;
    devices.camera("cam").formats("YUY2 640x480 30");
    devices.write();
    CameraWindow camera;
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 1);
    QVERIFY(!camera.capture.SaveBitmap(path("early.png")));
    camera.capture.Create();
    camera.capture.Start();
    QVERIFY(camera.capture.SaveBitmap(path("photo.png")));
    // Never in another photo's place.
    QVERIFY(!camera.capture.SaveBitmap(path("photo.png")));
    QVERIFY(!camera.capture.SaveBitmap(path("no/such/folder/photo.png")));
}

void TestStill::leavesNothingOnAFullDisk()
{
    const SmallDisk disk(1);
    if (!disk.isMounted())
        QSKIP("a small file system takes root to mount");
    TestDevices devices;
    devices.camera("cam").formats("YUY2 1920x1080 30").content("page");
    devices.write();
    CameraWindow camera;
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 1);
    QVERIFY(camera.start());
    QVERIFY(!camera.capture.SaveBitmap(disk.path("photo.png")));
    QCOMPARE(QDir(disk.path("")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList());
    QVERIFY(QStorageInfo(disk.path("")).bytesAvailable() > 900000);
}

void TestStill::leavesOnlyWholePhotosWhenKilled()
{
    TestDevices devices;
    devices.camera("cam").formats("YUY2 1280x720 30").content("page");
    devices.write();
    for (int round = 0; round < 5; ++round) {
        QProcess process;
        process.start(CAPTURE_PROCESS, {"photos", m_folder->path()});
        QVERIFY(process.waitForReadyRead(10000));
        QTest::qWait(37 + 13 * round);
        process.kill();
        QVERIFY(process.waitForFinished());
        const QStringList photos = QDir(m_folder->path()).entryList({"photo*"}, QDir::Files);
        QVERIFY(!photos.isEmpty());
        for (const QString &photo : photos) {
            QCOMPARE(QImage(path(photo)).size(), QSize(1280, 720));
            QFile::remove(path(photo));
        }
    }
}

QTEST_MAIN(TestStill)
#include "tst_still.moc"
