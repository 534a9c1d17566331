#include "capture/boardgesture.h"
#include "capture/livevideowidget.h"
#include "tests/support/modalanswer.h"
#include "tests/support/testdevices.h"
#include "util/webcamutil.h"

#include <QLabel>
#include <QtTest>

class TestLiveVideoWidget : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void livesWithoutACamera();
    void takesAPhotoIntoTheWorkingFolder();
    void recordsWithAPreview();
    void warnsOfDevicesThatAreMissing_data();
    void warnsOfDevicesThatAreMissing();
    void takesASeriesOfItsOwn();
    void zoomsByClearSteps_data();
    void zoomsByClearSteps();

private:
    QStringList workingFiles() const { return QDir(WebcamUtil::getTemporaryPath()).entryList(QDir::Files); }

    std::unique_ptr<TestDevices> m_devices;
    std::unique_ptr<LiveVideoWidget> m_view;
};

void TestLiveVideoWidget::init()
{
    m_devices = std::make_unique<TestDevices>();
    m_devices->camera("cam").formats("YUY2 320x240 30").content("counter");
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
    m_view->setResolution("640");
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

void TestLiveVideoWidget::warnsOfDevicesThatAreMissing_data()
{
    QTest::addColumn<QStringList>("pulled");
    QTest::addColumn<QString>("text");
    QTest::newRow("microphone")
        << QStringList("mic")
        << "The audio device is invalid. Please confirm whether the device is correctly connected.";
    QTest::newRow("camera")
        << QStringList("cam")
        << "The video device is invalid. Please confirm whether the device is correctly connected. ";
    QTest::newRow("both")
        << QStringList({"cam", "mic"})
        << "The video device and the audio device are invalid. Please confirm whether the device "
           "is correctly connected. ";
}

void TestLiveVideoWidget::warnsOfDevicesThatAreMissing()
{
    QFETCH(QStringList, pulled);
    QFETCH(QString, text);
    m_view->Create();
    m_view->Start();
    QVERIFY(!m_view->SaveBmp().isEmpty());
    QSignalSpy lost(m_view.get(), &LiveVideoWidget::disconnectDevice);
    for (const QString &device : pulled)
        m_devices->pull(device);
    if (pulled.contains("cam"))
        QVERIFY(lost.wait());
    // What is pulled is seen within moments.
    QTest::qWait(200);
    const ModalAnswer answer;
    QVERIFY(!m_view->Record());
    QCOMPARE(answer.text(), text);
    QCOMPARE(m_view->isVideoValid(), !pulled.contains("cam"));
    QCOMPARE(m_view->isAudioValid(), !pulled.contains("mic"));
    QCOMPARE(workingFiles().filter("movie"), QStringList());
}

void TestLiveVideoWidget::takesASeriesOfItsOwn()
{
    // Its pictures go by bare name, into the current folder.
    const QTemporaryDir folder;
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    QSignalSpy complete(m_view.get(), &LiveVideoWidget::ShotMax);
    m_view->Create();
    m_view->Start();
    m_view->ContinuesShot(3);
    m_view->Stop();
    m_view->Start();
    m_view->ContinuesShot(0);
    QVERIFY(!complete.wait(4500));
    QVERIFY(complete.wait(1500));
    QCOMPARE(QDir().entryList({"photo*.png"}).size(), 1);
    QDir::setCurrent(before);
}

void TestLiveVideoWidget::zoomsByClearSteps_data()
{
    QTest::addColumn<int>("last");
    QTest::addColumn<int>("distance");
    QTest::addColumn<int>("step");
    QTest::addColumn<bool>("isDecision");
    QTest::newRow("too small a change") << 200 << 299 << int(ZoomStep::None) << false;
    QTest::newRow("apart") << 200 << 300 << int(ZoomStep::In) << true;
    QTest::newRow("together") << 300 << 200 << int(ZoomStep::Out) << true;
    QTest::newRow("to a quarter, but no clear change") << 100 << 25 << int(ZoomStep::None) << false;
    QTest::newRow("a contact lost") << 500 << 100 << int(ZoomStep::None) << true;
    QTest::newRow("a contact found") << 20 << 200 << int(ZoomStep::None) << true;
}

void TestLiveVideoWidget::zoomsByClearSteps()
{
    QFETCH(int, last);
    QFETCH(int, distance);
    bool isDecision = false;
    QTEST(int(zoomStep(last, distance, &isDecision)), "step");
    QTEST(isDecision, "isDecision");
}

QTEST_MAIN(TestLiveVideoWidget)
#include "tst_livevideowidget.moc"
