#include "tests/platform/camerawindow.h"
#include "tests/platform/moviereader.h"

#include <QProcess>

// It takes clients with the last line. Without somebody who listens to them all the time, sinks give their
// sound in pieces of two seconds.
static const char serverScript[] = R"(
load-module module-null-sink sink_name=room
load-module module-null-sink sink_name=hall
load-module module-null-sink sink_name=listener
load-module module-sine sink=room
load-module module-loopback source=room.monitor sink=listener latency_msec=20
load-module module-loopback source=hall.monitor sink=listener latency_msec=20
load-module module-remap-source source_name=silence master=hall.monitor source_properties=device.description=Silence
load-module module-remap-source source_name=tone master=room.monitor source_properties=device.description=Tone
set-default-source tone
load-module module-native-protocol-unix
)";

// With a real PulseAudio of its own.
class TestSoundServer : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { endServer(); }
    void followsTheServersDefault();
    void outlivesTheServer();

private:
    void startServer();
    void endServer();
    MovieContents record(const std::function<void()> &meanwhile);
    bool isLoud()
    {
        return !record([] {}).loudMoments.empty();
    }

    QTemporaryDir m_folder;
    QProcess m_server;
    TestDevices m_devices;
    std::unique_ptr<CameraWindow> m_camera;
};

static bool tellServer(const QStringList &command)
{
    return QProcess::execute("pactl", command) == 0;
}

void TestSoundServer::initTestCase()
{
    gst_init(nullptr, nullptr);
    GstPluginFeature *provider = gst_registry_lookup_feature(gst_registry_get(), "pulsedeviceprovider");
    QVERIFY(provider);
    gst_plugin_feature_set_rank(provider, GST_RANK_PRIMARY);
    gst_object_unref(provider);
    QFile script(m_folder.filePath("script"));
    QVERIFY(script.open(QIODevice::WriteOnly) && script.write(serverScript) > 0);
    m_devices.camera("cam").property("device.path", "/dev/video0");
    m_devices.write();
}

void TestSoundServer::init()
{
    startServer();
    m_camera = std::make_unique<CameraWindow>();
    QVERIFY(m_camera->start());
    QTRY_VERIFY(m_camera->capture.IsValidAudioDevice());
}

void TestSoundServer::startServer()
{
    m_server.start("pulseaudio",
                   {"-n", "--daemonize=no", "--exit-idle-time=-1", "-F", m_folder.filePath("script")});
    QTRY_VERIFY(tellServer({"set-sink-mute", "room", "0"}));
    QProcess listener;
    listener.start("parec", {"-d", "tone", "--latency-msec=20"});
    QVERIFY(listener.waitForReadyRead(5000));
    listener.kill();
    listener.waitForFinished();
}

void TestSoundServer::endServer()
{
    m_server.terminate();
    QVERIFY(m_server.waitForFinished());
}

MovieContents TestSoundServer::record(const std::function<void()> &meanwhile)
{
    LiveVideoData &capture = m_camera->capture;
    capture.Record(m_folder.filePath("movie.mov"));
    QTest::qWait(1500);
    meanwhile();
    capture.RecordStop();
    static_cast<void>(QTest::qWaitFor([&] { return !capture.isFinishingMovie(); }));
    return readMovie(m_folder.filePath("movie.mov"));
}

void TestSoundServer::followsTheServersDefault()
{
    QVERIFY(isLoud());
    const MovieContents movie = record([] {
        QVERIFY(tellServer({"set-default-source", "silence"}));
        QTest::qWait(1000);
    });
    QVERIFY(!movie.loudMoments.empty() && movie.lastLoud < movie.length() - 0.5);
    QVERIFY(!isLoud());
}

void TestSoundServer::outlivesTheServer()
{
    endServer();
    QTRY_VERIFY(!m_camera->capture.IsValidAudioDevice());
    startServer();
    QTRY_VERIFY(m_camera->capture.IsValidAudioDevice());
    const MovieContents movie = record([this] {
        endServer();
        QTest::qWait(500);
        startServer();
        QTest::qWait(3000);
    });
    QVERIFY(m_camera->told.ended == MovieEnd::Asked && m_camera->lost.isEmpty());
    QVERIFY(movie.isReadToItsEnd);
    QVERIFY2(std::abs(movie.soundLength - movie.length()) < 0.2,
             qPrintable(QString("%1 of %2").arg(movie.soundLength).arg(movie.length())));
    QVERIFY(movie.loudMoments.size() >= 2);
    QVERIFY(movie.lastLoud > movie.length() - 0.5);
}

QTEST_MAIN(TestSoundServer)
#include "tst_soundserver.moc"
