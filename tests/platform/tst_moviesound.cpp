#include "tests/platform/camerawindow.h"
#include "tests/platform/moviereader.h"

#include <QProcess>

#include <cmath>

// A movie's sound, beside its picture.
class TestMovieSound : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void recordsPictureAndSoundInSync();
    void keepsStepWithAMicrophoneOfItsOwnMind();
    void holdsTheSoundUpToStop();
    void startsOnlyWithCameraAndMicrophone();
    void outlivesItsMicrophone();
    void bringsItsMicrophoneBack();
    void knowsAMicrophoneThatDoesNotOpen();

private:
    QString path() const { return m_folder->filePath("movie.mov"); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

// As its encoder wrote them into the pictures themselves.
static QByteArray coloursInAnotherPlayer(const QString &path)
{
    QProcess player;
    player.start("ffprobe", {"-v", "error", "-select_streams", "v", "-of", "csv=p=0", "-show_entries",
                             "stream=color_range,color_space,color_transfer,color_primaries", path});
    player.waitForFinished();
    return player.readAllStandardOutput().trimmed();
}

void TestMovieSound::recordsPictureAndSoundInSync()
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
        QElapsedTimer sincePress;
        sincePress.start();
        camera.capture.Record(path());
        QTest::qWait(4300);
        const double length = double(sincePress.elapsed()) / 1000;
        QElapsedTimer clock;
        clock.start();
        camera.capture.RecordStop();
        QVERIFY2(clock.elapsed() < 1000, format);
        camera.capture.RecordStop();

        QVERIFY2(playsInAnotherPlayer(path()), format);
        QCOMPARE(coloursInAnotherPlayer(path()), QByteArray("tv,bt709,bt709,bt709"));
        const MovieContents movie = readMovie(path());
        QCOMPARE(movie.colours, QByteArray("bt709"));
        QVERIFY2(std::abs(movie.length() - length) < 0.3 && std::abs(movie.soundLength - length) < 0.3,
                 format);
        QVERIFY2(movie.frames.size() >= 125, format);
        const std::vector<double> late = latenesses(movie);
        QVERIFY2(late.size() >= 3, format);
        for (const double seconds : late)
            QVERIFY2(std::abs(seconds) < 0.04, qPrintable(QString::number(seconds)));
        QFile::remove(path());
    }
}

// Its clock is a hundredth fast or slow, or its sound comes every half second only.
void TestMovieSound::keepsStepWithAMicrophoneOfItsOwnMind()
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

void TestMovieSound::holdsTheSoundUpToStop()
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

void TestMovieSound::startsOnlyWithCameraAndMicrophone()
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

void TestMovieSound::outlivesItsMicrophone()
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
        QVERIFY2(clock.elapsed() < 1000, name);
        QTest::qWait(700);
        if (name == "unplugged")
            devices.pull("mic");
        else if (*row.later)
            devices.setFault("mic", row.later);
        QTest::qWait(1000);
        clock.start();
        camera.capture.RecordStop();
        QVERIFY2(clock.elapsed() < 1000, name);
        QTRY_VERIFY2(!camera.capture.isFinishingMovie(), name);
        devices.setFault("mic", "");

        const MovieContents movie = readMovie(path());
        QVERIFY2(movie.isReadToItsEnd && movie.length() > 1.4 && movie.soundLength > 1.3, name);
        QVERIFY2(movie.loudMoments.empty() == bool(*row.atStart), name);
        const qint64 read = nowMicroseconds();
        QTRY_VERIFY2(camera.shownSince() > read, name);
        QVERIFY2(camera.lost.count() == 0 && !camera.capture.hadSoundHole(), name);
        QFile::remove(path());
    }
}

void TestMovieSound::bringsItsMicrophoneBack()
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

void TestMovieSound::knowsAMicrophoneThatDoesNotOpen()
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

QTEST_MAIN(TestMovieSound)
#include "tst_moviesound.moc"
