#include "tests/platform/camerawindow.h"
#include "tests/support/smalldisk.h"
#include "util/files/freespace.h"

#include <QFileSystemWatcher>
#include <QProcess>
#include <QScopeGuard>

#include <atomic>
#include <thread>

#include <sys/syscall.h>
#include <unistd.h>

// While the disk hangs a new name never comes to stand. This one is found before the C library's.
static std::atomic<bool> diskHangs{false};
extern "C" int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags)
{
    while (diskHangs)
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    return int(syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
}

class TestStill : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void savesTheNewestFrameInFullSize();
    void keepsTheColourOfEachRow();
    void passesOverDamagedFrames();
    void waitsForTheFirstFrame();
    void leavesNothingOnAFullDisk();
    void givesUpADiskThatHangs();
    void neverHoldsTheWindowUp();
    void leavesOnlyWholePhotosWhenKilled();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestStill::savesTheNewestFrameInFullSize()
{
    const struct {
        const char *format;
        QSize size;
    } table[] = {{"YUY2 1920x1080 30", {1920, 1080}}, {"JPEG 1280x720 30", {1280, 720}},
                 {"I420 322x242 30", {322, 242}},     {"YUY2 323x241 30 interlaced", {323, 241}},
                 {"NV12 321x243 30", {321, 243}},     {"RGB 321x243 30", {321, 243}}};
    for (const auto &row : table) {
        TestDevices devices;
        const bool isJpeg = row.format[0] == 'J';
        devices.camera("cam").formats(row.format).content("counter").name(row.format);
        devices.camera("cam").set("padding", isJpeg ? "0" : "24");
        devices.write();
        CameraWindow camera(QSize(320, 240));
        QVERIFY(camera.lists({row.format}));
        QVERIFY2(camera.start(), row.format);

        const QString photo = path(row.format);
        QRect place(QPoint(), row.size.scaled(camera.window.size(), Qt::KeepAspectRatio));
        place.moveCenter(camera.window.rect().center());
        const qint64 shown = CameraWindow::capturedAt(camera.screen(), place);
        QVERIFY(camera.capture.SaveBitmap(photo));
        QVERIFY(camera.capture.lastPhotoFault() == PhotoFault::None);
        const QImage image(photo, "PNG");
        QCOMPARE(image.size(), row.size);
        QVERIFY(camera.told.photo == image && camera.told.photo.format() == QImage::Format_RGB32);
        QVERIFY2(CameraWindow::capturedAt(image, image.rect()) >= shown && shown > 0, row.format);

        // Another reader than Qt's, which checks every sum.
        QProcess reader;
        reader.start("ffmpeg", {"-v", "error", "-xerror", "-err_detect", "crccheck+explode", "-f", "png_pipe",
                                "-i", photo, "-f", "null", "-"});
        QVERIFY(reader.waitForFinished());
        QCOMPARE(reader.readAllStandardError(), QByteArray());
        QCOMPARE(reader.exitCode(), 0);
    }
}

// Cameras send JPEG with as many rows of colour as of brightness.
void TestStill::keepsTheColourOfEachRow()
{
    TestDevices devices;
    devices.camera("cam").formats("JPEG 640x480 30").content("rows");
    devices.write();
    CameraWindow camera;
    QVERIFY(camera.start());
    QVERIFY(camera.capture.SaveBitmap(path("photo.png")));
    const QImage photo(path("photo.png"));
    for (int y = 0; y < photo.height(); ++y) {
        const QColor colour = photo.pixelColor(320, y);
        const QColor drawn(y % 2 ? 0x2020c0 : 0xc02020);
        QVERIFY2(qAbs(colour.red() - drawn.red()) < 40 && qAbs(colour.blue() - drawn.blue()) < 40,
                 qPrintable(QString("%1: %2").arg(y).arg(colour.name())));
    }
}

void TestStill::passesOverDamagedFrames()
{
    TestDevices devices;
    devices.camera("cam").formats("JPEG 640x480 30").content("counter").damaged("2");
    devices.write();
    CameraWindow camera;
    QVERIFY(camera.start());
    for (int i = 0; i < 12; ++i) {
        const QString photo = path(QString("photo%1.png").arg(i));
        QVERIFY(camera.capture.SaveBitmap(photo));
        const QImage image(photo);
        QVERIFY(CameraWindow::capturedAt(image, image.rect()) >= 0);
        QTest::qWait(11);
    }
    devices.camera("cam").damaged("1");
    devices.write();
    QString bad;
    const auto isTaken = [&] {
        camera.told.photo = QImage();
        bad = path(QString("bad%1.png").arg(nowMicroseconds()));
        return camera.capture.SaveBitmap(bad);
    };
    QTRY_VERIFY(!isTaken());
    QVERIFY(camera.capture.lastPhotoFault() == PhotoFault::NoPicture);
    QVERIFY(camera.told.photo.isNull() && !QFile::exists(bad));
}

void TestStill::waitsForTheFirstFrame()
{
    TestDevices devices;
    devices.camera("cam").name("Slow");
    devices.write();
    CameraWindow camera;
    QVERIFY(camera.lists({"Slow"}));
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
    QVERIFY(camera.start());
    QVERIFY(!camera.capture.SaveBitmap(disk.path("photo.png")));
    QVERIFY(camera.capture.lastPhotoFault() == PhotoFault::DiskFull);
    QVERIFY(QDir(disk.path("")).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    QVERIFY(freeBytes(disk.path("")).value_or(0) > 900000);
}

void TestStill::givesUpADiskThatHangs()
{
    TestDevices devices;
    devices.camera("cam");
    devices.write();
    CameraWindow camera;
    QVERIFY(camera.start());
    const auto answer = qScopeGuard([] { diskHangs = false; });
    diskHangs = true;
    Heartbeat heart;
    QElapsedTimer clock;
    clock.start();
    QVERIFY(!camera.capture.SaveBitmap(path("photo.png")));
    QVERIFY(camera.capture.lastPhotoFault() == PhotoFault::DiskHangs);
    QVERIFY(clock.elapsed() > 9000 && clock.elapsed() < 11000);
    QVERIFY2(heart.longest() < 100, qPrintable(QString::number(heart.longest())));
    QCOMPARE(camera.told.photo.size(), QSize(640, 480));
    // What the disk does later in spite of that comes to nothing.
    QFileSystemWatcher folder({m_folder->path()});
    QSignalSpy changed(&folder, &QFileSystemWatcher::directoryChanged);
    diskHangs = false;
    QVERIFY(changed.wait());
    QTRY_VERIFY(!QFileInfo::exists(path("photo.png")));
}

// In the best of some rounds, more of them where another process often has the processor.
void TestStill::neverHoldsTheWindowUp()
{
    TestDevices devices;
    devices.camera("cam").formats("YUY2 1920x1080 30").content("page");
    devices.microphone("mic");
    devices.write();
    CameraWindow camera;
    QVERIFY(camera.start());
    QTRY_VERIFY(camera.capture.IsValidAudioDevice());
    QMap<QString, qint64> best;
    const auto measure = [&](const QString &what, const std::function<void()> &work) {
        Heartbeat heart;
        work();
        best[what] = std::min(best.value(what, 1000000), heart.longest());
    };
    constexpr qint64 noticed = 50;
    constexpr int mostRounds = 20;
    const auto isHeldUp = [&] {
        return best.isEmpty() || *std::max_element(best.begin(), best.end()) >= noticed;
    };
    for (int round = 0; isHeldUp() && round < mostRounds; ++round) {
        const QString photo = path(QString("photo%1.png").arg(round));
        measure("Record", [&] { camera.capture.Record(path("movie.mov")); });
        QVERIFY(camera.capture.IsRecording());
        measure("IsValidAudioDevice", [&] { QVERIFY(camera.capture.IsValidAudioDevice()); });
        measure("SaveBitmap", [&] { QVERIFY(camera.capture.SaveBitmap(photo)); });
        measure("RecordStop", [&] { camera.capture.RecordStop(); });
        QTRY_VERIFY(!camera.capture.isFinishingMovie());
    }
    qInfo() << "longest silence of the GUI thread in ms:" << best;
    QVERIFY(!isHeldUp());
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
