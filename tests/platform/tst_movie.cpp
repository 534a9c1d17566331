#include "tests/platform/camerawindow.h"
#include "tests/platform/moviereader.h"
#include "tests/support/smalldisk.h"
#include "util/files/freespace.h"

#include <QProcess>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

// How long the disk takes to take what is written. This one is found before the C library's.
static std::atomic<int> syncMilliseconds{0};
extern "C" int fsync(int)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(syncMilliseconds));
    return 0;
}

class TestMovie : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void recordsPictureAndSoundInSync();
    void holdsEveryFrameFromThePressOn();
    void keepsStepWithAMicrophoneOfItsOwnMind();
    void holdsTheSoundUpToStop();
    void startsOnlyWithCameraAndMicrophone();
    void outlivesItsMicrophone();
    void bringsItsMicrophoneBack();
    void knowsAMicrophoneThatDoesNotOpen();
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

static bool playsInAnotherPlayer(const QString &path)
{
    QProcess player;
    player.start("ffmpeg",
                 {"-v", "error", "-xerror", "-i", path, "-map", "0:v", "-map", "0:a", "-f", "null", "-"});
    return player.waitForFinished() && player.exitCode() == 0 && player.readAllStandardError().isEmpty();
}

// As its encoder wrote them into the pictures themselves.
static QByteArray coloursInAnotherPlayer(const QString &path)
{
    QProcess player;
    player.start("ffprobe", {"-v", "error", "-select_streams", "v", "-of", "csv=p=0", "-show_entries",
                             "stream=color_range,color_space,color_transfer,color_primaries", path});
    player.waitForFinished();
    return player.readAllStandardOutput().trimmed();
}

void TestMovie::recordsPictureAndSoundInSync()
{
    for (const char *format : {"YUY2 640x480 30", "JPEG 640x480 30"}) {
        TestDevices devices;
        devices.camera("cam").formats(format).content("flash").name(format);
        devices.camera("cam").set("dim-room", "exposure_auto_priority");
        devices.microphone("mic").sound("beep");
        devices.write();
        CameraWindow camera;
        QVERIFY(camera.lists({format}));
        camera.capture.Create();
        camera.capture.Start();
        QTRY_VERIFY(camera.capture.IsValidVideoDevice());
        camera.capture.Record(path());
        QTest::qWait(4300);
        QElapsedTimer clock;
        clock.start();
        camera.capture.RecordStop();
        QVERIFY2(clock.elapsed() < 500, format);
        camera.capture.RecordStop();

        QVERIFY2(playsInAnotherPlayer(path()), format);
        QCOMPARE(coloursInAnotherPlayer(path()), QByteArray("tv,bt709,bt709,bt709"));
        const MovieContents movie = readMovie(path());
        QCOMPARE(movie.colours, QByteArray("bt709"));
        QVERIFY2(std::abs(movie.length() - 4.3) < 0.3 && std::abs(movie.soundLength - 4.3) < 0.3, format);
        QVERIFY2(movie.frames.size() >= 125, format);
        const std::vector<double> late = latenesses(movie);
        QVERIFY2(late.size() >= 3, format);
        for (const double seconds : late)
            QVERIFY2(std::abs(seconds) < 0.04, qPrintable(QString::number(seconds)));
        QFile::remove(path());
    }
}

void TestMovie::holdsEveryFrameFromThePressOn()
{
    constexpr qint64 period = 1000000 / 15;
    TestDevices devices;
    devices.camera("cam").formats("YUY2 640x480 15").content("counter").set("under-way", "70");
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
    camera.capture.RecordStop();
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

// Its clock is a hundredth fast or slow, or its sound comes every half second only.
void TestMovie::keepsStepWithAMicrophoneOfItsOwnMind()
{
    const struct {
        int clock;
        int bursts;
    } table[] = {{0, 500}, {10000, 0}, {-10000, 0}};
    for (const auto &row : table) {
        const QByteArray name = QByteArray::number(row.clock) + ' ' + QByteArray::number(row.bursts);
        TestDevices devices;
        devices.camera("cam").content("flash");
        devices.microphone("mic").sound("beep").clock(row.clock).bursts(row.bursts);
        devices.write();
        CameraWindow camera;
        QVERIFY2(camera.start(), name);
        QTRY_VERIFY2(camera.capture.IsValidAudioDevice(), name);
        camera.capture.Record(path());
        QTest::qWait(7500);
        camera.capture.RecordStop();
        QTRY_VERIFY2(!camera.capture.isFinishingMovie(), name);
        const MovieContents movie = readMovie(path());
        const std::vector<double> late = latenesses(movie);
        QVERIFY2(late.size() >= 6 && std::abs(movie.soundLength - movie.length()) < 0.2, name);
        for (const double seconds : late) {
            const QString told = QString("%1: %2 s").arg(name.constData()).arg(seconds);
            // A burst takes its time to be read.
            QVERIFY2(std::abs(seconds) < (row.bursts ? 0.15 : 0.04), qPrintable(told));
        }
        QFile::remove(path());
    }
}

void TestMovie::holdsTheSoundUpToStop()
{
    TestDevices devices;
    devices.camera("cam");
    devices.microphone("mic").sound("tone").bursts(500);
    devices.write();
    CameraWindow camera;
    QVERIFY(camera.start());
    QTRY_VERIFY(camera.capture.IsValidAudioDevice());
    for (const int milliseconds : {400, 2700}) {
        camera.capture.Record(path());
        QTest::qWait(milliseconds);
        camera.capture.RecordStop();
        QTRY_VERIFY(!camera.capture.isFinishingMovie());
        const MovieContents movie = readMovie(path());
        QVERIFY2(movie.loudMoments.size() == 1 && movie.loudMoments.front() < 0.4,
                 qPrintable(QString("%1 of %2 s").arg(movie.loudMoments.size()).arg(movie.length())));
        QVERIFY2(movie.longestQuiet < 0.01, qPrintable(QString::number(movie.longestQuiet)));
        // The last packet of the encoder may be cut short.
        QVERIFY2(movie.lastLoud > movie.length() - 0.03,
                 qPrintable(QString("%1 of %2").arg(movie.lastLoud).arg(movie.length())));
        QFile::remove(path());
    }
}

void TestMovie::startsOnlyWithCameraAndMicrophone()
{
    TestDevices devices;
    devices.camera("cam");
    devices.write();
    CameraWindow camera;
    camera.capture.Record(path());
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
    // So short a movie is one too, and is finished at once.
    for (int i = 0; i < 10; ++i) {
        camera.capture.Record(path());
        camera.capture.RecordStop();
        QVERIFY(QFileInfo(path()).size() > 0);
        QTRY_VERIFY_WITH_TIMEOUT(!camera.capture.isFinishingMovie(), 2000);
    }
}

void TestMovie::outlivesItsMicrophone()
{
    const struct {
        const char *atStart;
        const char *later;
    } table[] = {{"", "unplugged"}, {"", "stall"}, {"", "read-error"}, {"hang-open", ""}, {"busy", ""}};
    TestDevices devices;
    devices.camera("cam").content("counter");
    for (const auto &row : table) {
        const QByteArray name = QByteArray(row.atStart) + row.later;
        devices.microphone("mic").sound("tone").fault(row.atStart);
        devices.plug("mic");
        CameraWindow camera;
        QVERIFY2(camera.start(), name);
        QTRY_VERIFY(camera.capture.IsValidAudioDevice());
        QElapsedTimer clock;
        clock.start();
        camera.capture.Record(path());
        QVERIFY2(clock.elapsed() < 200, name);
        QTest::qWait(700);
        if (name == "unplugged")
            devices.pull("mic");
        else if (*row.later)
            devices.setFault("mic", row.later);
        QTest::qWait(1000);
        clock.start();
        camera.capture.RecordStop();
        QVERIFY2(clock.elapsed() < 500, name);
        QTRY_VERIFY2(!camera.capture.isFinishingMovie(), name);
        devices.setFault("mic", "");

        const MovieContents movie = readMovie(path());
        QVERIFY2(movie.isReadToItsEnd && movie.length() > 1.4 && movie.soundLength > 1.3, name);
        QVERIFY2(movie.loudMoments.empty() == bool(*row.atStart), name);
        QTRY_VERIFY2(nowMicroseconds() - camera.shownSince() < 200000, name);
        QVERIFY2(camera.lost.count() == 0 && !camera.capture.hadSoundHole(), name);
        QFile::remove(path());
    }
}

void TestMovie::bringsItsMicrophoneBack()
{
    const struct {
        const char *fault;
        int milliseconds;
        bool isHole;
    } table[] = {
        {"read-error", 2500, true}, {"unplugged", 2500, true}, {"stall", 3000, true}, {"ends", 200, false}};
    TestDevices devices;
    devices.camera("cam");
    devices.microphone("mic").sound("tone");
    devices.write();
    CameraWindow camera;
    QVERIFY(camera.start());
    for (const auto &row : table) {
        QTRY_VERIFY2(camera.capture.IsValidAudioDevice(), row.fault);
        camera.capture.Record(path());
        QTest::qWait(700);
        if (QByteArray(row.fault) == "unplugged")
            devices.pull("mic");
        else
            devices.setFault("mic", row.fault);
        QTest::qWait(row.milliseconds);
        devices.setFault("mic", "");
        devices.plug("mic");
        QTest::qWait(2200);
        camera.capture.RecordStop();
        QVERIFY2(camera.told.ended == MovieEnd::Asked, row.fault);
        QVERIFY2(camera.capture.hadSoundHole() == row.isHole, row.fault);
        QTRY_VERIFY(!camera.capture.isFinishingMovie());
        const MovieContents movie = readMovie(path());
        const double silence =
            movie.loudMoments.size() == 2 ? movie.loudMoments[1] - movie.loudMoments[0] : 0;
        QVERIFY2(silence > row.milliseconds / 1000.0, row.fault);
        QVERIFY2(silence < 0.7 + row.milliseconds / 1000.0 + 1.6, row.fault);
        QVERIFY2(movie.lastLoud > movie.soundLength - 0.3, row.fault);
        QFile::remove(path());
    }
}

void TestMovie::knowsAMicrophoneThatDoesNotOpen()
{
    TestDevices devices;
    devices.camera("cam");
    devices.microphone("mic").fault("hang-open");
    devices.write();
    CameraWindow camera;
    QVERIFY(camera.start());
    QTRY_VERIFY(camera.capture.IsValidAudioDevice());
    for (const char *fault : {"hang-open", "busy"}) {
        devices.setFault("mic", fault);
        QElapsedTimer clock;
        clock.start();
        camera.capture.Record(path());
        QVERIFY2(camera.capture.IsRecording() && !camera.capture.IsValidAudioDevice(), fault);
        QVERIFY2(clock.elapsed() < 2500, fault);
        camera.capture.RecordStop();
        QVERIFY2(!camera.capture.IsValidAudioDevice(), fault);
        // Tried again by the next movie.
        devices.setFault("mic", "");
        QTest::qWait(50);
        camera.capture.Record(path());
        QVERIFY2(camera.capture.IsValidAudioDevice(), fault);
        camera.capture.RecordStop();
        QVERIFY2(camera.capture.IsValidAudioDevice(), fault);
    }
    camera.capture.Record(path());
    devices.pull("mic");
    QTRY_VERIFY(!camera.capture.IsValidAudioDevice());
    camera.capture.RecordStop();
    QTRY_VERIFY_WITH_TIMEOUT(!camera.capture.isFinishingMovie(), 2000);
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
    camera.capture.Record(path());
    QTest::qWait(6000);
    QElapsedTimer clock;
    clock.start();
    camera.capture.RecordStop();
    QVERIFY(clock.elapsed() < 600);
    QVERIFY(camera.capture.isFinishingMovie());
    QTRY_VERIFY(nowMicroseconds() - camera.shownSince() < 200000);
    QCOMPARE(camera.told.files, 0);
    QTRY_VERIFY_WITH_TIMEOUT(!camera.capture.isFinishingMovie(), 15000);
    QTRY_COMPARE(camera.told.files, 1);
    syncMilliseconds = 0;
    QVERIFY(playsInAnotherPlayer(path()));
    const MovieContents movie = readMovie(path());
    QVERIFY(std::abs(movie.length() - 6) < 0.3 && std::abs(movie.soundLength - 6) < 0.3);
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
            camera.capture.Record(movie);
            QElapsedTimer length;
            length.start();
            QTest::qWait(300);
            devices.setFault("cam", fault);
            QTest::qWait(700);
            const bool isTaken = camera.capture.SaveBitmap(folder.filePath("1.png")); // where it still can be
            QVERIFY2(isTaken != QImage(folder.filePath("1.png")).isNull(), name);
            devices.setFault("cam", "");

            // What the stream tells of ends it, and the movie; the camera can be opened again.
            const qint64 cleared = nowMicroseconds();
            const bool isLost = QByteArray(fault) == "other-format";
            QVERIFY2(camera.lost.count() == int(isLost), name);
            if (isLost) {
                camera.capture.Release();
                QVERIFY2(camera.start(), name);
            }
            QTRY_VERIFY2(camera.shownSince() > cleared, name);
            QVERIFY2(camera.capture.SaveBitmap(folder.filePath("2.png")), name);
            camera.capture.RecordStop();
            const double seconds = double(length.elapsed()) / 1000;
            QTRY_VERIFY(!camera.capture.isFinishingMovie());
            const MovieContents contents = readMovie(movie);
            QVERIFY2(contents.isReadToItsEnd && contents.frames.size() > 8, name);
            QVERIFY2(contents.frames.size() < 60 + size_t(seconds * 60), name);
            QVERIFY2(isLost || std::abs(contents.length() - seconds) < 0.4, name);
        }
    }
}

QTEST_MAIN(TestMovie)
#include "tst_movie.moc"
