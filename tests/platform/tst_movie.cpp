#include "tests/platform/camerawindow.h"
#include "tests/platform/moviereader.h"
#include "tests/support/smalldisk.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QStorageInfo>

#include <algorithm>
#include <cmath>

class TestMovie : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void recordsPictureAndSoundInSync_data();
    void recordsPictureAndSoundInSync();
    void startsOnlyWithCameraAndMicrophone();
    void outlivesItsMicrophone_data();
    void outlivesItsMicrophone();
    void showsWhatZoomShows();
    void waitsWithANewResolution();
    void playsAfterTheProgramWasKilled();
    void endsOnAFullDisk_data();
    void endsOnAFullDisk();
    void isFinishedWhenTheCameraIsClosed();

private:
    QString path() const { return m_folder->filePath("movie.mov"); }
    static bool playsInAnotherPlayer(const QString &path);

    std::unique_ptr<QTemporaryDir> m_folder;
};

bool TestMovie::playsInAnotherPlayer(const QString &path)
{
    QProcess player;
    player.start("ffmpeg",
                 {"-v", "error", "-xerror", "-i", path, "-map", "0:v", "-map", "0:a", "-f", "null", "-"});
    return player.waitForFinished() && player.exitCode() == 0 && player.readAllStandardError().isEmpty();
}

void TestMovie::recordsPictureAndSoundInSync_data()
{
    QTest::addColumn<QString>("format");
    QTest::newRow("raw") << "YUY2 640x480 30";
    QTest::newRow("JPEG") << "JPEG 640x480 30";
}

void TestMovie::recordsPictureAndSoundInSync()
{
    QFETCH(QString, format);
    TestDevices devices;
    devices.camera("cam").formats(format).content("flash");
    devices.microphone("mic").sound("beep");
    devices.write();
    CameraWindow camera;
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 1);
    camera.capture.Create();
    camera.capture.Start();
    QTRY_VERIFY(camera.capture.IsValidVideoDevice());
    camera.capture.Record(path());
    QTest::qWait(4300);
    QElapsedTimer clock;
    clock.start();
    camera.capture.RecordStop();
    QVERIFY2(clock.elapsed() < 500, qPrintable(QString::number(clock.elapsed())));
    camera.capture.RecordStop();

    QVERIFY(playsInAnotherPlayer(path()));
    const MovieContents movie = readMovie(path());
    QVERIFY(movie.isReadToItsEnd);
    QVERIFY(movie.length() > 4.0 && movie.length() < 4.6);
    QVERIFY(movie.soundLength > 4.0 && movie.soundLength < 4.6);
    QVERIFY2(movie.frames.size() >= 125, qPrintable(QString::number(movie.frames.size())));

    std::vector<double> flashes;
    for (size_t i = 1; i < movie.frames.size(); ++i) {
        const QPoint centre = movie.frames[i].picture.rect().center();
        if (qGray(movie.frames[i].picture.pixel(centre)) > 128 &&
            qGray(movie.frames[i - 1].picture.pixel(centre)) <= 128)
            flashes.push_back(movie.frames[i].time);
    }
    QVERIFY(flashes.size() >= 3);
    int pairs = 0;
    for (const double flash : flashes) {
        const auto nearest =
            std::min_element(movie.loudMoments.begin(), movie.loudMoments.end(), [flash](double a, double b) {
                return std::abs(a - flash) < std::abs(b - flash);
            });
        if (nearest == movie.loudMoments.end())
            continue;
        qInfo("flash at %.3f s, beep %+.0f ms", flash, (*nearest - flash) * 1000);
        // One frame, and the packet of the encoder.
        pairs += std::abs(*nearest - flash) < 0.045;
    }
    QVERIFY(pairs >= 3);
}

void TestMovie::startsOnlyWithCameraAndMicrophone()
{
    TestDevices devices;
    devices.camera("cam").formats("YUY2 320x240 30");
    devices.write();
    CameraWindow camera(QSize(320, 240));
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 1);
    camera.capture.Record(path());
    QVERIFY(!camera.capture.IsValidVideoDevice());
    QVERIFY(camera.start());
    QTRY_VERIFY(!camera.capture.IsValidAudioDevice());
    camera.capture.Record(path());
    QVERIFY(!QFileInfo::exists(path()));
    camera.capture.RecordStop();
    devices.microphone("mic");
    devices.write();
    QTRY_VERIFY(camera.capture.IsValidAudioDevice());
    camera.capture.Record("/no/such/folder/movie.mov");
    camera.capture.RecordStop();
    camera.capture.Record(path());
    // So short a movie is one too.
    camera.capture.RecordStop();
    QVERIFY(QFileInfo(path()).size() > 0);
}

void TestMovie::outlivesItsMicrophone_data()
{
    QTest::addColumn<QString>("atStart");
    QTest::addColumn<QString>("later");
    QTest::newRow("pulled out") << "none"
                                << "pull";
    QTest::newRow("gives no more sound") << "none"
                                         << "stall";
    QTest::newRow("fails") << "none"
                           << "read-error";
    QTest::newRow("hangs while it is opened") << "hang-open"
                                              << "";
    QTest::newRow("busy") << "busy"
                          << "";
}

void TestMovie::outlivesItsMicrophone()
{
    QFETCH(QString, atStart);
    QFETCH(QString, later);
    TestDevices devices;
    devices.camera("cam").formats("YUY2 320x240 30").content("counter");
    devices.microphone("mic").sound("tone").fault(atStart);
    devices.write();
    CameraWindow camera(QSize(320, 240));
    QSignalSpy lost(&camera.capture, &LiveVideoData::disconnectDevice);
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 1);
    QVERIFY(camera.start());
    QTRY_VERIFY(camera.capture.IsValidAudioDevice());
    QElapsedTimer clock;
    clock.start();
    camera.capture.Record(path());
    QVERIFY(clock.elapsed() < 200);
    QTest::qWait(700);
    if (later == QLatin1String("pull"))
        devices.pull("mic");
    else if (!later.isEmpty())
        devices.setFault("mic", later);
    QTest::qWait(1000);
    clock.start();
    camera.capture.RecordStop();
    QVERIFY2(clock.elapsed() < 500, qPrintable(QString::number(clock.elapsed())));
    devices.setFault("mic", "none");

    const MovieContents movie = readMovie(path());
    QVERIFY(movie.isReadToItsEnd);
    QVERIFY(movie.length() > 1.4);
    QVERIFY(movie.soundLength > 1.3);
    QCOMPARE(movie.loudMoments.empty(), atStart != QLatin1String("none"));
    CounterReading reading;
    QTRY_VERIFY(CameraWindow::read(camera.screen(), QRect(0, 0, 320, 240), &reading) &&
                nowMicroseconds() - reading.capturedUs < 200000);
    QCOMPARE(lost.count(), 0);
}

void TestMovie::showsWhatZoomShows()
{
    TestDevices devices;
    devices.camera("cam").formats("YUY2 640x360 30").content("quarters");
    devices.microphone("mic");
    devices.write();
    CameraWindow camera;
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 1);
    QVERIFY(camera.start());
    camera.capture.Record(path());
    QTest::qWait(300);
    for (int i = 0; i < 4; ++i)
        camera.capture.ZoomIn();
    QTest::qWait(300);
    QVERIFY(camera.capture.SaveBitmap(m_folder->filePath("zoomed.png")));
    camera.capture.RecordStop();
    const MovieContents movie = readMovie(path());
    QVERIFY(movie.frames.size() > 10);
    const QImage last = movie.frames.back().picture;
    const QImage photo = QImage(m_folder->filePath("zoomed.png")).scaled(last.size());
    int alike = 0;
    int unlikeFirst = 0;
    int looked = 0;
    for (int y = 3; y < last.height(); y += 7) {
        for (int x = 3; x < last.width(); x += 7, ++looked) {
            alike += qAbs(qGray(last.pixel(x, y)) - qGray(photo.pixel(x, y))) < 30;
            unlikeFirst +=
                qAbs(qGray(movie.frames.front().picture.pixel(x, y)) - qGray(photo.pixel(x, y))) > 30;
        }
    }
    QVERIFY(alike > looked * 9 / 10);
    QVERIFY(unlikeFirst > looked / 50);
}

void TestMovie::waitsWithANewResolution()
{
    TestDevices devices;
    devices.camera("cam").formats("YUY2 320x240 30;YUY2 640x480 30");
    devices.microphone("mic");
    devices.write();
    CameraWindow camera;
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 1);
    QVERIFY(camera.start());
    camera.capture.Record(path());
    camera.capture.SetResolution(320, 240);
    QTest::qWait(500);
    QCOMPARE(camera.capture.nativeWidth, 640);
    camera.capture.RecordStop();
    QCOMPARE(camera.capture.nativeWidth, 320);
    QTRY_VERIFY(camera.capture.IsValidVideoDevice());
    QVERIFY(readMovie(path()).frames.size() > 10);
}

void TestMovie::playsAfterTheProgramWasKilled()
{
    TestDevices devices;
    devices.camera("cam").formats("YUY2 640x480 30").content("counter");
    devices.microphone("mic").sound("beep");
    devices.write();
    QProcess process;
    process.start(CAPTURE_PROCESS, {"movie", path()});
    QVERIFY(process.waitForReadyRead(10000));
    const qint64 started = nowMicroseconds();
    QTest::qWait(5300);
    process.kill();
    const double ran = double(nowMicroseconds() - started) / 1e6;
    QVERIFY(process.waitForFinished());
    QVERIFY(playsInAnotherPlayer(path()));
    const MovieContents movie = readMovie(path());
    qInfo("killed after %.2f s: picture %.2f s, sound %.2f s", ran, movie.length(), movie.soundLength);
    QVERIFY(movie.length() > ran - 1.0);
    QVERIFY(movie.soundLength > ran - 1.1);
}

void TestMovie::endsOnAFullDisk_data()
{
    QTest::addColumn<qint64>("left");
    QTest::newRow("nearly full") << qint64(12) * 1024 * 1024;
    QTest::newRow("full at once") << qint64(0);
}

void TestMovie::endsOnAFullDisk()
{
    QFETCH(qint64, left);
    const SmallDisk disk(40);
    if (!disk.isMounted())
        QSKIP("a small file system takes root to mount");
    TestDevices devices;
    devices.camera("cam").formats("YUY2 640x480 30").content("page");
    devices.microphone("mic");
    devices.write();
    CameraWindow camera;
    QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 1);
    QVERIFY(camera.start());
    QSignalSpy ended(&camera.capture, &LiveVideoData::devicestop);
    const QString movie = disk.path("movie.mov");
    camera.capture.Record(movie);
    QTest::qWait(1500);
    QCOMPARE(ended.count(), 0);
    disk.fillUpTo(left, QStorageInfo(disk.path("")).bytesAvailable());
    QVERIFY(ended.wait(3000));
    camera.capture.RecordStop();
    QVERIFY(playsInAnotherPlayer(movie));
    QVERIFY(readMovie(movie).length() > 0.9);
    QVERIFY(camera.capture.IsValidVideoDevice());
}

void TestMovie::isFinishedWhenTheCameraIsClosed()
{
    TestDevices devices;
    devices.camera("cam").formats("YUY2 320x240 30");
    devices.microphone("mic");
    devices.write();
    {
        CameraWindow camera;
        QTRY_COMPARE(camera.capture.GetVideoDeviceList().size(), 1);
        QVERIFY(camera.start());
        camera.capture.Record(path());
        QTest::qWait(600);
    }
    const MovieContents movie = readMovie(path());
    QVERIFY(movie.isReadToItsEnd && movie.length() > 0.4);
    QVERIFY(playsInAnotherPlayer(path()));
}

QTEST_MAIN(TestMovie)
#include "tst_movie.moc"
