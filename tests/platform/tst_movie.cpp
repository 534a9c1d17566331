#include "tests/platform/camerawindow.h"
#include "tests/platform/moviereader.h"
#include "tests/platform/slowdisk.h"
#include "tests/support/smalldisk.h"
#include "util/files/freespace.h"

#include <QProcess>

#include <cmath>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

// A movie and its picture.
class TestMovie : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void holdsEveryFrameFromThePressOn_data();
    void holdsEveryFrameFromThePressOn();
    void makesLargePicturesSmallAndLeavesOutDamagedOnes();
    void givesUpADiskThatHangs();
    void showsWhatZoomShows();
    void isTurnedAsThePictureIs();
    void playsAfterTheProgramWasKilled();
    void endsOnAFullDisk();
    void isFinishedWhenTheCameraIsClosed();
    void losesNothingToASlowDisk();
    void outlivesACameraThatLies();

private:
    QString path() const { return m_folder->filePath("movie.mov"); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

// Milliseconds. A second's frames may wait for it, and a machine be slow.
constexpr int waitForEncoder = 20000;

using Ending = void (*)(LiveVideoData &);
Q_DECLARE_METATYPE(Ending)

void TestMovie::holdsEveryFrameFromThePressOn_data()
{
    QTest::addColumn<Ending>("end");
    QTest::newRow("Stop") << Ending([](LiveVideoData &capture) { capture.RecordStop(); });
    QTest::newRow("the camera is closed") << Ending([](LiveVideoData &capture) { capture.Release(); });
    QTest::newRow("Stop, and another size is waiting") << Ending([](LiveVideoData &capture) {
        capture.SetResolution(320, 240);
        capture.RecordStop();
    });
}

void TestMovie::holdsEveryFrameFromThePressOn()
{
    QFETCH(Ending, end);
    constexpr qint64 period = 1000000 / 15;
    TestDevices devices;
    devices.camera("cam")
        .formats("YUY2 640x480 15;YUY2 320x240 15")
        .content("counter")
        .set("under-way", "70");
    devices.camera("cam").set("dim-room", "exposure_dynamic_framerate");
    devices.microphone("mic");
    devices.write();
    CameraWindow camera;
    QVERIFY(camera.start());
    QTRY_VERIFY(camera.capture.IsValidAudioDevice());
    const qint64 press = nowMicroseconds();
    camera.capture.Record(path());
    QTest::qWait(1500);
    const qint64 stop = nowMicroseconds();
    end(camera.capture);
    QTRY_VERIFY(!camera.capture.isFinishingMovie());
    const std::vector<MovieContents::Frame> frames = readMovie(path()).frames;
    QVERIFY(frames.size() > 20);
    const auto first = frames.front();
    QVERIFY2(std::abs(press - first.captured) < 3 * period,
             qPrintable(QString::number(press - first.captured)));
    const qint64 missing = stop - frames.back().captured;
    QVERIFY2(missing > -period / 2 && missing < period + 1000, qPrintable(QString::number(missing)));
    for (size_t i = 1; i < frames.size(); ++i) {
        const qint64 step = frames[i].captured - frames[i - 1].captured;
        QVERIFY2(std::abs(step - period) < 1000, qPrintable(QString("%1: %2").arg(i).arg(step)));
        const double drift = frames[i].time * 1e6 - double(frames[i].captured - first.captured);
        QVERIFY2(std::abs(drift) < 25000, qPrintable(QString("%1: %2").arg(i).arg(drift)));
    }
}

// Of a slow camera, whose frames are long under way.
void TestMovie::makesLargePicturesSmallAndLeavesOutDamagedOnes()
{
    constexpr qint64 period = 1000000 / 5;
    const struct {
        const char *name;
        const char *format;
        bool isDamaged;
        const char *padding;
    } table[] = {{"raw", "NV12 2048x1536 5", false, "0"},
                 {"marked, rows with padding", "NV12 2048x1536 5", true, "24"},
                 {"JPEG", "JPEG 2048x1536 5", true, "0"}};
    for (const auto &[name, format, isDamaged, padding] : table) {
        TestDevices devices;
        devices.camera("cam").formats(format).content("counter").damaged(isDamaged ? "3" : "0");
        devices.camera("cam").set("under-way", "430").set("padding", padding).name(name);
        devices.microphone("mic");
        devices.write();
        CameraWindow camera;
        QVERIFY2(camera.lists({name}) && camera.start(), name);
        QTRY_VERIFY(camera.capture.IsValidAudioDevice());
        camera.capture.Record(path());
        QTest::qWait(2500);
        const qint64 stop = nowMicroseconds();
        camera.capture.RecordStop();
        QTRY_VERIFY(!camera.capture.isFinishingMovie());
        const MovieContents movie = readMovie(path());
        QCOMPARE(movie.first.size(), QSize(1440, 1080));
        QVERIFY(movie.frames.size() > 5);
        QVERIFY(stop - movie.frames.back().captured < (isDamaged ? 2 : 1) * period + 1000);
        bool isAnyLeftOut = false;
        for (size_t i = 1; i < movie.frames.size(); ++i) {
            const qint64 step = movie.frames[i].captured - movie.frames[i - 1].captured;
            const bool isOneLeftOut = std::abs(step - 2 * period) < 1000;
            isAnyLeftOut = isAnyLeftOut || isOneLeftOut;
            QVERIFY2(std::abs(step - period) < 1000 || isOneLeftOut, qPrintable(QString::number(step)));
        }
        QCOMPARE(isAnyLeftOut, isDamaged);
    }
}

// Opening a pipe for writing takes until somebody reads.
void TestMovie::givesUpADiskThatHangs()
{
    TestDevices devices;
    devices.camera("cam");
    devices.microphone("mic");
    devices.write();
    CameraWindow camera;
    QVERIFY(camera.start());
    QTRY_VERIFY(camera.capture.IsValidAudioDevice());
    QCOMPARE(mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
    Heartbeat heart;
    QElapsedTimer clock;
    clock.start();
    camera.capture.Record(path());
    QVERIFY(clock.elapsed() > 4500 && clock.elapsed() < 6000);
    QVERIFY2(heart.longest() < 100, qPrintable(QString::number(heart.longest())));
    QVERIFY(!camera.capture.IsRecording() && camera.told.ended == MovieEnd::None);
    QVERIFY(camera.capture.IsValidVideoDevice() && camera.lost.isEmpty());
    // A file that comes to be in spite of that is taken away, and another movie does not mind.
    const int reader = open(QFile::encodeName(path()).constData(), O_RDONLY | O_NONBLOCK);
    QTRY_VERIFY_WITH_TIMEOUT(!QFileInfo::exists(path()), 15000);
    close(reader);
    camera.capture.Record(path());
    QVERIFY(camera.capture.IsRecording());
    camera.capture.RecordStop();
}

void TestMovie::showsWhatZoomShows()
{
    TestDevices devices;
    devices.camera("cam").content("quarters");
    devices.microphone("mic");
    devices.write();
    CameraWindow camera;
    QVERIFY(camera.start());
    // The white square on the centre, with a black one in it, reaches here only when it is enlarged, and the
    // black one only when it is enlarged too much.
    const QPoint place(320 + 36, 240 + 36);
    const auto isWhite = [&](const QImage &picture) { return qGray(picture.pixel(place)) > 220; };
    QVERIFY(!isWhite(camera.screen()));
    camera.capture.Record(path());
    QTest::qWait(300);
    for (int i = 0; i < 4; ++i)
        camera.capture.ZoomIn();
    QTRY_VERIFY(isWhite(camera.screen()));
    QVERIFY(camera.capture.SaveBitmap(m_folder->filePath("zoomed.png")));
    QVERIFY(isWhite(QImage(m_folder->filePath("zoomed.png"))));
    QTest::qWait(300);
    camera.capture.RecordStop();
    const MovieContents movie = readMovie(path());
    QVERIFY(!isWhite(movie.first) && isWhite(movie.last));
    for (int i = 0; i < 6; ++i)
        camera.capture.ZoomOut();
    QTRY_VERIFY(!isWhite(camera.screen()) && camera.screen().pixelColor(3, 3).red() > 150);
}

void TestMovie::isTurnedAsThePictureIs()
{
    TestDevices devices;
    devices.camera("cam").content("quarters");
    devices.microphone("mic");
    devices.write();
    CameraWindow camera;
    QVERIFY(camera.start());
    // The quarters from the darkest to the brightest: blue, red, green, yellow.
    const auto quarters = [](const QImage &picture, const QRect &place) {
        QString letters;
        for (const QPoint &corner :
             {place.topLeft(), place.topRight(), place.bottomLeft(), place.bottomRight()}) {
            const QPoint inside = (4 * corner + place.center()) / 5;
            const int grey = qGray(picture.pixel(inside));
            letters += grey < 25 ? '-' : grey < 62 ? 'b' : grey < 95 ? 'r' : grey < 150 ? 'g' : 'y';
        }
        return letters;
    };
    camera.capture.turnPicture();
    camera.capture.Record(path());
    QVERIFY(camera.capture.IsRecording());
    QTest::qWait(300);
    camera.capture.turnPicture();
    QTest::qWait(300);
    camera.capture.RecordStop();
    const MovieContents movie = readMovie(path());
    QCOMPARE(movie.first.size(), QSize(480, 640));
    QCOMPARE(quarters(movie.first, movie.first.rect()), QString("bryg"));
    // What is turned meanwhile is fitted into the movie.
    QCOMPARE(movie.last.size(), QSize(480, 640));
    QCOMPARE(quarters(movie.last, QRect(0, 140, 480, 360)), QString("ybgr"));
    QCOMPARE(quarters(movie.last, movie.last.rect()), QString("----"));
}

void TestMovie::playsAfterTheProgramWasKilled()
{
    TestDevices devices;
    devices.camera("cam").content("counter");
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

void TestMovie::endsOnAFullDisk()
{
    constexpr qint64 nearlyFull = qint64(12) << 20;
    for (const qint64 left : {nearlyFull, qint64(0)}) {
        const SmallDisk disk(40);
        if (!disk.isMounted())
            QSKIP("a small file system takes root to mount");
        TestDevices devices;
        devices.camera("cam").content("page");
        devices.microphone("mic");
        devices.write();
        CameraWindow camera;
        QVERIFY(camera.start());
        QSignalSpy ended(&camera.capture, &LiveVideoData::devicestop);
        const QString movie = disk.path("movie.mov");
        camera.capture.Record(movie);
        QTest::qWait(1500);
        QCOMPARE(ended.count(), 0);
        disk.fillUpTo(left, freeBytes(disk.path("")).value_or(0));
        QElapsedTimer clock;
        clock.start();
        QTRY_VERIFY(camera.told.ended == MovieEnd::DiskFull);
        QVERIFY(clock.elapsed() < 1000);
        QTRY_COMPARE(ended.count(), 1);
        camera.capture.RecordStop();
        QVERIFY(playsInAnotherPlayer(movie));
        QVERIFY(readMovie(movie).length() > 0.9);
        QVERIFY(camera.capture.IsValidVideoDevice());
    }
}

void TestMovie::isFinishedWhenTheCameraIsClosed()
{
    TestDevices devices;
    devices.camera("cam");
    devices.microphone("mic");
    devices.write();
    {
        CameraWindow camera;
        QVERIFY(camera.start());
        camera.capture.Record(path());
        QTest::qWait(600);
    }
    QVERIFY(readMovie(path()).length() > 0.4);
    QVERIFY(playsInAnotherPlayer(path()));
}

void TestMovie::losesNothingToASlowDisk()
{
    TestDevices devices;
    devices.camera("cam").content("counter");
    devices.microphone("mic");
    devices.write();
    CameraWindow camera;
    QVERIFY(camera.start());
    syncMilliseconds = 1000;
    const qint64 press = nowMicroseconds();
    camera.capture.Record(path());
    QTest::qWait(6000);
    syncMilliseconds = 3000;
    const qint64 stop = nowMicroseconds();
    camera.capture.RecordStop();
    const qint64 stopped = nowMicroseconds();
    QVERIFY(stopped - stop < 1000000);
    QTRY_VERIFY(camera.shownSince() > stopped);
    QVERIFY(camera.capture.isFinishingMovie());
    QCOMPARE(camera.told.files, 0);
    QTRY_VERIFY_WITH_TIMEOUT(!camera.capture.isFinishingMovie(), waitForEncoder);
    QTRY_COMPARE(camera.told.files, 1);
    syncMilliseconds = 0;
    QVERIFY(playsInAnotherPlayer(path()));
    const MovieContents movie = readMovie(path());
    const double length = double(stop - press) / 1e6;
    QVERIFY2(std::abs(movie.length() - length) < 0.3 && std::abs(movie.soundLength - length) < 0.3,
             qPrintable(QString("%1 %2 %3").arg(length).arg(movie.length()).arg(movie.soundLength)));
    QVERIFY(movie.frames.size() > 120);
}

// Pictures that change in mid-stream, or that cannot be.
void TestMovie::outlivesACameraThatLies()
{
    for (const char *coding : {"YUY2", "JPEG"}) {
        for (const char *fault : {"other-size", "other-format", "short", "long", "wild-times", "flood"}) {
            const QByteArray name = QByteArray(coding) + ", " + fault;
            const QTemporaryDir folder;
            TestDevices devices;
            const QString formats = QString("%1 640x480 30;%1 320x240 30").arg(coding);
            devices.camera("cam").formats(formats).content("counter").name(name);
            devices.microphone("mic");
            devices.write();
            CameraWindow camera;
            QVERIFY2(camera.lists({name}) && camera.start(), name);
            QTRY_VERIFY(camera.capture.IsValidAudioDevice());
            const QString movie = folder.filePath("movie.mov");
            QElapsedTimer length;
            length.start();
            camera.capture.Record(movie);
            QTest::qWait(300);
            QElapsedTimer faulty;
            faulty.start();
            devices.setFault("cam", fault);
            QTest::qWait(700);
            const bool isTaken = camera.capture.SaveBitmap(folder.filePath("1.png")); // where it still can be
            QVERIFY2(isTaken != QImage(folder.filePath("1.png")).isNull(), name);
            devices.setFault("cam", "");

            // What the stream tells of ends it, and the movie; the camera can be opened again. On a slow
            // machine the others may last until the camera counts as silent.
            const qint64 cleared = nowMicroseconds();
            const bool isTold = QByteArray(fault) == "other-format";
            const bool isLost = camera.lost.count() == 1;
            QVERIFY2(isLost == isTold || faulty.elapsed() > 2500, name);
            if (isLost) {
                camera.capture.Release();
                QVERIFY2(camera.start(), name);
            }
            QTRY_VERIFY2(camera.shownSince() > cleared, name);
            QVERIFY2(camera.capture.SaveBitmap(folder.filePath("2.png")), name);
            const double seconds = double(length.elapsed()) / 1000;
            camera.capture.RecordStop();
            QTRY_VERIFY_WITH_TIMEOUT(!camera.capture.isFinishingMovie(), waitForEncoder);
            const MovieContents contents = readMovie(movie);
            QVERIFY2(contents.isReadToItsEnd && contents.frames.size() > 8, name);
            QVERIFY2(contents.frames.size() < 60 + size_t(seconds * 60), name);
            QVERIFY2(isLost || std::abs(contents.length() - seconds) < 0.4, name);
        }
    }
}

QTEST_MAIN(TestMovie)
#include "tst_movie.moc"
