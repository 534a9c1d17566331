#include "tests/app/program.h"
#include "tests/support/smalldisk.h"
#include "tests/support/testdevices.h"

#include <QCryptographicHash>
#include <QSettings>

#include <csignal>

class TestProgram : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void playsALesson();
    void deletesOrStays();
    void startsOnce();
    void endsWhenTheCameraChoiceIsCancelled();
    void warnsOfMissingDevicesAboveItsWindow();
    void saysWhichPartIsMissing();
    void losesNothingWhenKilledWhileSaving();
    void keepsCapturesAtLogOut_data();
    void keepsCapturesAtLogOut();

private:
    static void takePhoto();
    static void waitForNewSecond();
    static void recordMovie();
    static void loadEarlierDay(const QStringList &photos);
    static QStringList readRequest(const QString &file);
    static QMap<QString, QByteArray> checksums(const QDir &folder);
    static QStringList requests()
    {
        return QDir(Program::workingFolder().filePath("tmp")).entryList(QDir::Files);
    }
    static QDir saved()
    {
        return QDir(QDir::home().filePath("VeltrixCamera/" + QDate::currentDate().toString("yyyyMMdd")));
    }

    std::unique_ptr<TestDevices> m_devices;
};

void TestProgram::init()
{
    m_devices = std::make_unique<TestDevices>();
    m_devices->camera("cam").name("Board Cam").formats("YUY2 640x480 30").content("page");
    m_devices->microphone("mic").sound("beep");
    m_devices->write();
    // A series by hand, so that no test waits for the self-timer.
    QSettings settings(QDir::home().filePath(".hollin_orvane.ini"), QSettings::IniFormat);
    settings.setValue("AutoShoot", 0);
    settings.setValue("ContinuShootCount", 3);
}

void TestProgram::cleanup()
{
    m_devices.reset();
    Program::workingFolder().removeRecursively();
    QDir(QDir::home().filePath("VeltrixCamera")).removeRecursively();
}

// By the preview, accepted, and back to the live picture.
void TestProgram::takePhoto()
{
    const int before = Program::captures({"photo*"}).size();
    Program::click(Program::liveRow(1));
    QTRY_COMPARE(Program::captures({"photo*"}).size(), before + 1);
    QTRY_VERIFY(Program::showsPreview());
    Program::click(Program::acceptButton());
    QTRY_COMPARE(Program::buttonsShown(), 3);
    Program::click(Program::row(0));
    QTRY_COMPARE(Program::buttonsShown(), -5);
}

// Requests are named by the second.
void TestProgram::waitForNewSecond()
{
    const int second = QTime::currentTime().second();
    QTRY_VERIFY(QTime::currentTime().second() != second);
}

void TestProgram::recordMovie()
{
    Program::click(Program::liveRow(3));
    QTRY_COMPARE(Program::captures({"movie*.mov"}).size(), 1);
    QTRY_COMPARE(Program::captures({"movie*tmp.png"}).size(), 1);
    const QString movie = Program::workingFolder().filePath(Program::captures({"movie*.mov"}).first());
    QTRY_VERIFY(QFileInfo(movie).size() > 4100000);
    Program::click(Program::liveRow(3));
    QTRY_COMPARE(Program::buttonsShown(), 3);
}

// Two photos of another day come in beside the lesson's own.
void TestProgram::loadEarlierDay(const QStringList &photos)
{
    const QTemporaryDir earlier;
    for (const QString &name : photos.mid(0, 2))
        QFile::copy(Program::workingFolder().filePath(name),
                    QDir(earlier.path()).filePath("photo1" + name.mid(5)));
    Program::click(Program::row(2));
    QTRY_COMPARE(Program::buttonsShown(), 4);
    const int windows = Program::windows("");
    Program::click(Program::row(2));
    QTRY_VERIFY(Program::windows("Load Directory") == 1);
    Program::type(earlier.path());
    Program::press("Return");
    QTRY_COMPARE(Program::captures({"photo*"}).size(), photos.size() + 2);
    // The wait dialog stays until it was read.
    QTRY_COMPARE(Program::windows(), 2);
    QTRY_VERIFY_WITH_TIMEOUT((Program::press("Return"), Program::windows("") <= windows), 5000);
}

QStringList TestProgram::readRequest(const QString &file)
{
    QFile request(Program::workingFolder().filePath("tmp/" + file));
    if (!request.open(QIODevice::ReadOnly))
        return {};
    QStringList lines = QString::fromUtf8(request.readAll()).split('\n');
    // The last line ends with a line break too.
    return lines.takeLast().isEmpty() ? lines : QStringList("cut short");
}

QMap<QString, QByteArray> TestProgram::checksums(const QDir &folder)
{
    QMap<QString, QByteArray> sums;
    for (const QString &name : folder.entryList({"photo*", "movie*"}, QDir::Files)) {
        QFile file(folder.filePath(name));
        QCryptographicHash sum(QCryptographicHash::Sha256);
        if (file.open(QIODevice::ReadOnly) && sum.addData(&file))
            sums[name] = sum.result();
    }
    return sums;
}

void TestProgram::playsALesson()
{
    Program program;
    QVERIFY(program.start());
    for (int photo = 0; photo < 5; ++photo)
        takePhoto();

    // A series of three: the first at once, the others by the same button; then its grid.
    for (int shot = 1; shot <= 3; ++shot) {
        Program::click(Program::liveRow(2));
        QTRY_COMPARE(Program::captures({"photo*"}).size(), 5 + shot);
    }
    QTRY_COMPARE(Program::buttonsShown(), 3);
    Program::click(Program::row(1));
    QTRY_COMPARE(requests().size(), 1);
    const QStringList photos = Program::captures({"photo*"});
    QStringList expected({"0", "933x700", Program::workingFolder().path()});
    QCOMPARE(readRequest(requests().last()), expected + photos.mid(5));
    Program::click(Program::row(0));
    QTRY_COMPARE(Program::buttonsShown(), -5);
    recordMovie();

    // The list shows movies now; the other kind is one button away.
    Program::click(Program::row(2));
    QTRY_COMPARE(Program::buttonsShown(), 4);
    Program::click(Program::row(3));
    for (int thumbnail = 0; thumbnail < 3; ++thumbnail) {
        const QPoint place(70 + 135 * thumbnail, 630);
        QTRY_VERIFY(Program::brightness(place) > 60);
        Program::click(place);
    }
    QTRY_VERIFY(Program::brightness(QPoint(512, 200)) > 60);
    Program::click(Program::row(1));
    QTRY_COMPARE(Program::buttonsShown(), 3);
    waitForNewSecond();
    Program::click(Program::row(1));
    QTRY_COMPARE(requests().size(), 2);
    // The strip stands at its newest end, so the first that is seen is not the first of all.
    const int first = photos.indexOf(readRequest(requests().last()).value(3));
    QCOMPARE(readRequest(requests().last()), expected + photos.mid(first, 3));

    // One of them large, pasted alone, and back.
    const int cell = 933 / 3;
    Program::click(QPoint((1024 - 933) / 2 + cell * 2 - 30, 350 + 700 / 3 / 2 - 30));
    QTRY_VERIFY(Program::brightness(QPoint(100, 50)) > 60);
    waitForNewSecond();
    Program::click(Program::row(1));
    QTRY_COMPARE(requests().size(), 3);
    QCOMPARE(readRequest(requests().last()), expected + photos.mid(first + 1, 1));

    Program::click(QPoint((1024 + 933) / 2 - 30, 700 - 30));
    QTRY_VERIFY(Program::brightness(QPoint(100, 50)) < 10);
    loadEarlierDay(photos);

    const QMap<QString, QByteArray> taken = checksums(Program::workingFolder());
    QCOMPARE(taken.size(), 12);
    Program::click(Program::exitButton());
    QTRY_COMPARE(Program::windows(), 2);
    Program::press("Return");
    QVERIFY(program.waitForEnd());
    QCOMPARE(program.process().exitCode(), 0);
    QCOMPARE(checksums(saved()), taken);
    QCOMPARE(Program::captures(), QStringList());
}

void TestProgram::deletesOrStays()
{
    Program program;
    QVERIFY(program.start());
    takePhoto();
    Program::click(Program::exitButton());
    QTRY_COMPARE(Program::windows(), 2);
    Program::press("Escape");
    QTRY_COMPARE(Program::windows(), 1);
    QCOMPARE(program.process().state(), QProcess::Running);
    QCOMPARE(Program::captures().size(), 1);
    Program::click(Program::exitButton());
    QTRY_COMPARE(Program::windows(), 2);
    Program::press("Tab");
    Program::press("space");
    QVERIFY(program.waitForEnd());
    QCOMPARE(Program::captures(), QStringList());
    QVERIFY(!saved().exists());
}

void TestProgram::startsOnce()
{
    Program first;
    QVERIFY(first.start());
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(QProcess::execute(ORVANE_PROGRAM, {}), 0);
    QVERIFY(clock.elapsed() < 5000);
    // Killed, the first leaves nothing in the next one's way.
    first.process().kill();
    QVERIFY(first.waitForEnd());
    Program next;
    QVERIFY(next.start());
    // Nothing was taken: no question.
    Program::click(Program::exitButton());
    QVERIFY(next.waitForEnd());
    QCOMPARE(next.process().exitCode(), 0);
}

void TestProgram::endsWhenTheCameraChoiceIsCancelled()
{
    m_devices->camera("second").name("Veltrix CX-20").formats("YUY2 320x240 30").content("page");
    m_devices->write();
    Program program;
    QVERIFY(program.start(false));
    // The dialog is the only window: it is narrow, and the corner of the screen stays empty.
    QCOMPARE(Program::brightness(QPoint(5, 760)), 0);
    Program::press("Escape");
    QVERIFY(program.waitForEnd());
    QCOMPARE(program.process().exitCode(), 255);

    Program again;
    QVERIFY(again.start(false));
    Program::press("Return");
    QTRY_VERIFY_WITH_TIMEOUT(Program::brightness(QPoint(400, 300)) > 30, 10000);
    QTRY_VERIFY(Program::brightness(Program::exitButton() - QPoint(70, 0)) > 0);
}

void TestProgram::warnsOfMissingDevicesAboveItsWindow()
{
    m_devices->pull("cam");
    m_devices->pull("mic");
    Program program;
    QVERIFY(program.start(false));
    // The box in the middle is bright, the window behind it black.
    QTRY_VERIFY(Program::brightness(QPoint(512, 400)) > 150);
    QVERIFY(Program::brightness(QPoint(100, 100)) < 30);
    // Longer than the window's own raising takes.
    QTest::qWait(700);
    QVERIFY(Program::brightness(QPoint(512, 400)) > 150);
    Program::press("Return");
    QTRY_VERIFY(Program::brightness(QPoint(512, 400)) < 30);
    Program::click(Program::exitButton());
    QVERIFY(program.waitForEnd());

    // A log-out while the warning stands leaves no process behind.
    Program again;
    QVERIFY(again.start(false));
    QTRY_VERIFY(Program::brightness(QPoint(512, 400)) > 150);
    again.process().terminate();
    QVERIFY(again.waitForEnd());
}

void TestProgram::saysWhichPartIsMissing()
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // Without the system's plug-ins there is no encoder, no muxer and no decoder.
    environment.insert("GST_PLUGIN_SYSTEM_PATH_1_0", "/nowhere");
    environment.insert("GST_REGISTRY_1_0", QDir::temp().filePath("registry.bin"));
    program.setProcessEnvironment(environment);
    program.start(ORVANE_PROGRAM, QStringList());
    QVERIFY(program.waitForStarted());
    QByteArray words;
    QTRY_VERIFY_WITH_TIMEOUT((words += program.readAllStandardError()).contains("x264enc") &&
                                 words.contains("gstreamer1.0-plugins-ugly"),
                             10000);
    QTRY_VERIFY(Program::windows() > 0);
    program.kill();
    QVERIFY(program.waitForFinished());
}

void TestProgram::losesNothingWhenKilledWhileSaving()
{
    const SmallDisk disk(700);
    if (!disk.isMounted())
        QSKIP("a small file system takes root to mount");
    QSettings settings(QDir::home().filePath(".hollin_orvane.ini"), QSettings::IniFormat);
    settings.setValue("SaveDirectory", disk.path(""));
    settings.sync();
    const QDir target(disk.path("VeltrixCamera/" + QDate::currentDate().toString("yyyyMMdd")));

    Program program;
    QVERIFY(program.start());
    takePhoto();
    QFile large(Program::workingFolder().filePath("movie20240101120000.mov"));
    QVERIFY(large.open(QIODevice::WriteOnly));
    const QByteArray block(1024 * 1024, 'm');
    for (int mebibyte = 0; mebibyte < 500; ++mebibyte)
        large.write(block);
    large.close();
    const QMap<QString, QByteArray> taken = checksums(Program::workingFolder());
    QCOMPARE(taken.size(), 2);
    Program::click(Program::exitButton());
    QTRY_COMPARE(Program::windows(), 2);
    Program::press("Return");
    QTRY_VERIFY(target.exists());
    program.process().kill();
    QVERIFY(program.waitForEnd());

    // Whatever had been reached, each capture is whole, here or there.
    QMap<QString, QByteArray> found = checksums(target);
    for (auto capture = found.begin(); capture != found.end(); ++capture)
        QCOMPARE(capture.value(), taken[capture.key()]);
    const QMap<QString, QByteArray> left = checksums(Program::workingFolder());
    for (auto capture = left.begin(); capture != left.end(); ++capture)
        found[capture.key()] = capture.value();
    QCOMPARE(found, taken);

    Program next;
    QVERIFY(next.start());
    Program::click(Program::exitButton());
    QTRY_COMPARE(Program::windows(), 2);
    Program::press("Return");
    QVERIFY(next.waitForEnd(30000));
    QCOMPARE(checksums(target), taken);
    QCOMPARE(Program::captures(), QStringList());
    settings.remove("SaveDirectory");
}

void TestProgram::keepsCapturesAtLogOut_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("log-out") << SIGTERM;
    QTest::newRow("killed") << SIGKILL;
}

void TestProgram::keepsCapturesAtLogOut()
{
    QFETCH(int, signal);
    Program program;
    QVERIFY(program.start());
    takePhoto();
    Program::click(Program::liveRow(3));
    QTRY_COMPARE(Program::captures({"movie*.mov"}).size(), 1);
    const QString movie = Program::workingFolder().filePath(Program::captures({"movie*.mov"}).first());
    QTRY_VERIFY(QFileInfo(movie).size() > 4300000);
    ::kill(pid_t(program.process().processId()), signal);
    QVERIFY(program.waitForEnd());
    QCOMPARE(Program::captures({"photo*.png"}).size(), 1);
    const QStringList movies = Program::captures({"movie*.mov"});
    QCOMPARE(movies.size(), 1);
    QProcess player;
    player.start("ffprobe", {"-v", "error", "-show_entries", "format=duration", "-of", "csv=p=0",
                             Program::workingFolder().filePath(movies.first())});
    QVERIFY(player.waitForFinished());
    QVERIFY(player.readAllStandardOutput().trimmed().toDouble() > 1.3);

    // The next leaving offers them.
    Program next;
    QVERIFY(next.start());
    Program::click(Program::exitButton());
    QTRY_COMPARE(Program::windows(), 2);
    Program::press("Return");
    QVERIFY(next.waitForEnd());
    QCOMPARE(saved().entryList(QDir::Files).size(), 3);
}

QTEST_MAIN(TestProgram)
#include "tst_program.moc"
