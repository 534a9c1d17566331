#include "capture/boardgesture.h"
#include "capture/livevideowidget.h"
#include "tests/support/modalanswer.h"
#include "tests/support/testdevices.h"
#include "util/webcamutil.h"

#include <QLabel>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <ctime>
#include <sys/time.h>

// Where the clock stands still, in milliseconds since 1970; else it goes. Found before the C library's.
static std::atomic<qint64> stoppedClock{0};
extern "C" int gettimeofday(timeval *now, void *) noexcept
{
    timespec real = {};
    clock_gettime(CLOCK_REALTIME, &real);
    const qint64 stopped = stoppedClock;
    *now = stopped != 0 ? timeval{stopped / 1000, stopped % 1000 * 1000}
                        : timeval{real.tv_sec, real.tv_nsec / 1000};
    return 0;
}

class TestLiveVideoWidget : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void livesWithoutACamera();
    void takesAPhotoIntoTheWorkingFolder();
    void recordsWithAPreview();
    void nothingTakesTheNameOfAnother();
    void warnsOfDevicesThatAreMissing();
    void factsFollowTheCamera();
    void zoomsByClearSteps();

private:
    QStringList workingFiles() const { return QDir(WebcamUtil::getTemporaryPath()).entryList(QDir::Files); }

    std::unique_ptr<TestDevices> m_devices;
    std::unique_ptr<LiveVideoWidget> m_view;
};

void TestLiveVideoWidget::init()
{
    m_devices = std::make_unique<TestDevices>();
    m_devices->camera("cam").formats("YUY2 320x240 30");
    m_devices->microphone("mic");
    m_devices->write();
    m_view = std::make_unique<LiveVideoWidget>();
    m_view->resize(320, 240);
    QTRY_COMPARE(m_view->getVideoDeviceList().size(), 1);
}

void TestLiveVideoWidget::cleanup()
{
    m_devices.reset();
    // The next test's cameras are not to be taken for these.
    QTRY_COMPARE(m_view->getVideoDeviceList().size(), 0);
    m_view.reset();
    WebcamUtil::deleteData();
}

void TestLiveVideoWidget::livesWithoutACamera()
{
    m_devices->pull("cam");
    QTRY_COMPARE(m_view->getVideoDeviceList().size(), 0);
    m_view->show();
    m_view->Zoomin();
    m_view->Start();
    m_view->Create();
    QVERIFY(!m_view->isCreate());
    QVERIFY(!m_view->isVideoValid());
    QVERIFY(m_view->isAudioValid());
    QCOMPARE(m_view->SaveBmp(), QString());
    QCOMPARE(m_view->getNativeSize(), QSize(0, 0));
    m_view->Release();
}

void TestLiveVideoWidget::takesAPhotoIntoTheWorkingFolder()
{
    m_view->show();
    m_view->Create();
    m_view->Start();
    auto *caption = m_view->findChild<QLabel *>();
    QVERIFY(caption->isVisible());
    QCOMPARE(caption->text(), QString("LIVE"));
    const QString name = m_view->SaveBmp();
    QVERIFY(QRegExp("photo\\d{17}\\.png").exactMatch(name));
    QCOMPARE(workingFiles(), QStringList(name));

    // The mouse is caught wherever it is pressed, whatever the view's size.
    m_view->resize(500, 400);
    QTRY_COMPARE(m_view->childAt(490, 390)->size(), QSize(500, 400));
}

void TestLiveVideoWidget::recordsWithAPreview()
{
    m_view->Create();
    m_view->Start();
    QVERIFY(m_view->Record());
    QTest::qWait(400);
    m_view->RecordStop();
    const QString movie = QFileInfo(m_view->moviePath()).fileName();
    QVERIFY(QRegExp("movie\\d{14}\\.mov").exactMatch(movie));
    QStringList expected({movie, QString(movie).replace(".mov", "tmp.png")});
    expected.sort();
    QCOMPARE(workingFiles(), expected);
}

// Within one moment, at midnight; and when the clock is set back to it, as it was in the middle of a movie.
void TestLiveVideoWidget::nothingTakesTheNameOfAnother()
{
    const auto goOn = qScopeGuard([] { stoppedClock = 0; });
    QTimer clock;
    QObject::connect(&clock, &QTimer::timeout, [] { stoppedClock += 250; });
    m_view->Create();
    m_view->Start();
    for (int taken = 0; taken < 4; ++taken) {
        if (taken % 2 == 0)
            stoppedClock = QDateTime(QDate(2030, 3, 1), QTime(0, 0)).toMSecsSinceEpoch() - 1;
        else
            clock.start(100);
        QVERIFY(!m_view->SaveBmp().isEmpty() && m_view->Record());
        stoppedClock -= taken == 1 ? 86400000 : 0;
        m_view->RecordStop();
    }
    const QStringList files = workingFiles();
    QVERIFY(files.contains("photo20300228235959999.png") && files.contains("movie20300301000000.mov"));
    for (const char *kind : {"^photo", "mov$", "tmp.png$"})
        QCOMPARE(files.filter(QRegularExpression(kind)).size(), 4);
}

void TestLiveVideoWidget::warnsOfDevicesThatAreMissing()
{
    const struct {
        QStringList pulled;
        const char *text;
    } table[] = {
        {{"mic"}, "The audio device is invalid. Please confirm whether the device is correctly connected."},
        {{"cam"}, "The video device is invalid. Please confirm whether the device is correctly connected. "},
        {{"cam", "mic"},
         "The video device and the audio device are invalid. Please confirm whether the device "
         "is correctly connected. "},
    };
    QSignalSpy lost(m_view.get(), &LiveVideoWidget::disconnectDevice);
    for (const auto &row : table) {
        for (const char *device : {"cam", "mic"})
            m_devices->plug(device);
        QTRY_COMPARE(m_view->getVideoDeviceList().size(), 1);
        m_view->Create();
        m_view->Start();
        QVERIFY(!m_view->SaveBmp().isEmpty());
        QTRY_VERIFY(m_view->Record());
        m_view->RecordStop();
        WebcamUtil::deleteData();
        for (const QString &device : row.pulled)
            m_devices->pull(device);
        const bool isCameraGone = row.pulled.contains("cam");
        if (isCameraGone)
            QVERIFY(lost.wait());
        // What is pulled is seen within moments.
        QTest::qWait(200);
        const ModalAnswer answer;
        QVERIFY(!m_view->Record());
        QCOMPARE(answer.text(), QString(row.text));
        QCOMPARE(m_view->isVideoValid(), !isCameraGone);
        QCOMPARE(m_view->isAudioValid(), !row.pulled.contains("mic"));
        QCOMPARE(workingFiles().filter("movie"), QStringList());
        m_view->Release();
    }
}

void TestLiveVideoWidget::factsFollowTheCamera()
{
    QVERIFY(m_view->isVideoValid()); // nobody has looked yet
    QSignalSpy lost(m_view.get(), &LiveVideoWidget::disconnectDevice);
    const Facts &now = m_view->facts().now();
    const struct {
        const char *fault;
        Cause why;
    } table[] = {{"busy", Cause::Refused}, {"no-bandwidth", Cause::Refused}, {"", Cause::Unplugged}};
    for (const auto &row : table) {
        m_devices->setFault("cam", row.fault);
        m_view->Create();
        m_view->Start();
        QVERIFY(now.camera.state == CameraState::Opening && m_view->isVideoValid());
        if (row.why == Cause::Unplugged) {
            QTRY_COMPARE(now.camera.state, CameraState::Live);
            QVERIFY(!m_view->SaveBmp().isEmpty());
            QVERIFY(now.photo.state == PhotoState::Done && !now.isHeldUp);
            m_devices->pull("cam");
        }
        QVERIFY(lost.wait(5000));
        QVERIFY(now.camera.state == CameraState::Lost && now.camera.why == row.why &&
                !m_view->isVideoValid());
        QCOMPARE(m_view->SaveBmp(), QString());
        QVERIFY(now.photo.state == PhotoState::Failed && now.photo.why == Cause::Camera);
        m_view->Release();
        QCOMPARE(now.camera.state, CameraState::Lost);
    }
    QTRY_COMPARE(m_view->getVideoDeviceList().size(), 0);
    m_view->lookForCamera();
    QVERIFY(!now.canReopen);
    m_devices->plug("cam");
    QTRY_VERIFY(now.canReopen);
}

void TestLiveVideoWidget::zoomsByClearSteps()
{
    const struct {
        int last;
        int distance;
        ZoomStep step;
        bool isDecision;
    } table[] = {
        {200, 299, ZoomStep::None, false}, {200, 300, ZoomStep::In, true}, {300, 200, ZoomStep::Out, true},
        {100, 25, ZoomStep::None, false}, // to a quarter, but no clear change
        {500, 100, ZoomStep::None, true}, // a contact lost
        {20, 200, ZoomStep::None, true},  // a contact found
    };
    for (const auto &row : table) {
        bool isDecision = false;
        QCOMPARE(int(zoomStep(row.last, row.distance, &isDecision)), int(row.step));
        QCOMPARE(isDecision, row.isDecision);
    }
}

QTEST_MAIN(TestLiveVideoWidget)
#include "tst_livevideowidget.moc"
