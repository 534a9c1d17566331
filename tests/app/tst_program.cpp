#include "tests/app/program.h"
#include "tests/support/smalldisk.h"
#include "tests/support/testdevices.h"

#include <QCryptographicHash>
#include <QSettings>

using Checksums = QMap<QString, QByteArray>;

static Checksums checksums(const QDir &folder)
{
    Checksums sums;
    for (const QString &name : folder.entryList({"photo*", "movie*"}, QDir::Files)) {
        QFile file(folder.filePath(name));
        QCryptographicHash sum(QCryptographicHash::Md5);
        if (file.open(QIODevice::ReadOnly) && sum.addData(&file))
            sums[name] = sum.result();
    }
    return sums;
}

// The day's folder in a save folder.
static QDir saved(const QDir &folder = QDir::home())
{
    return QDir(folder.filePath("VeltrixCamera/" + QDate::currentDate().toString("yyyyMMdd")));
}

static QStringList requests()
{
    return QDir(Program::workingFolder().filePath("tmp")).entryList(QDir::Files);
}

// The lines of the newest request.
static QStringList readRequest()
{
    QFile request(Program::workingFolder().filePath("tmp/" + requests().value(requests().size() - 1)));
    if (!request.open(QIODevice::ReadOnly))
        return {};
    QStringList lines = QString::fromUtf8(request.readAll()).split('\n');
    // The last line ends with a line break too.
    return lines.takeLast().isEmpty() ? lines : QStringList("cut short");
}

class TestProgram : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void playsALesson();
    void losesNothingWhenKilledWhileSaving();
    void losesNothingAtLogOut();
    void endsWhenTheCameraChoiceIsCancelled();
    void warnsOfMissingDevicesAboveItsWindow();
    void saysWhichPartIsMissing();

private:
    static void takePhoto();
    static void takeSeries();
    static void startMovie();
    static void paste();
    static void loadFolder(const QPoint &listButton, const QString &path);
    static void loadEarlierDay(const QStringList &photos);
    static void playLesson();
    static void leave(Program::Answer answer);

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
    settings.clear();
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

// Three: the first at once, the others by the same button.
void TestProgram::takeSeries()
{
    const int before = Program::captures({"photo*"}).size();
    for (int shot = 1; shot <= 3; ++shot) {
        Program::click(Program::liveRow(2));
        QTRY_COMPARE(Program::captures({"photo*"}).size(), before + shot);
    }
    QTRY_COMPARE(Program::buttonsShown(), 3);
}

void TestProgram::startMovie()
{
    Program::click(Program::liveRow(3));
    QTRY_COMPARE(Program::captures({"movie*"}).size(), 2);
    const QString movie = Program::workingFolder().filePath(Program::captures({"movie*.mov"}).first());
    // What is reserved for its index, and pictures.
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(movie).size() > 4300000, 20000);
}

// Requests are named by the second: waits for one without a request.
void TestProgram::paste()
{
    const int before = requests().size();
    const int second = QTime::currentTime().second();
    QTRY_VERIFY(before == 0 || QTime::currentTime().second() != second);
    Program::click(Program::row(1));
    QTRY_COMPARE(requests().size(), before + 1);
}

void TestProgram::loadFolder(const QPoint &listButton, const QString &path)
{
    Program::click(listButton);
    QTRY_COMPARE(Program::buttonsShown(), 4);
    Program::click(Program::row(2));
    QTRY_COMPARE(Program::windows("Load Directory"), 1);
    Program::xdotool({"type", path});
    Program::press("Return");
}

// Two photos of another day come in beside the lesson's own.
void TestProgram::loadEarlierDay(const QStringList &photos)
{
    const QTemporaryDir earlier;
    for (const QString &name : photos.mid(0, 2))
        QFile::copy(Program::workingFolder().filePath(name), earlier.filePath("photo1" + name.mid(5)));
    loadFolder(Program::row(2), earlier.path());
    QTRY_COMPARE_WITH_TIMEOUT(Program::captures({"photo*"}).size(), photos.size() + 2, 20000);
    // The wait dialog stays until it was read.
    QTRY_COMPARE(Program::windows(), 2);
    QTRY_VERIFY((Program::press("Return"), Program::windows() == 1));
}

void TestProgram::playLesson()
{
    for (int photo = 0; photo < 5; ++photo)
        takePhoto();
    takeSeries();
    paste(); // its grid
    const QStringList photos = Program::captures({"photo*"});
    const QStringList head({"0", "933x700", Program::workingFolder().path()});
    QCOMPARE(readRequest(), head + photos.mid(5));
    Program::click(Program::row(0));
    QTRY_COMPARE(Program::buttonsShown(), -5);
    startMovie();
    Program::click(Program::liveRow(3));
    QTRY_COMPARE(Program::buttonsShown(), 3);

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
    paste();
    // The strip stands at its newest end, so the first that is seen is not the first of all.
    const int first = photos.indexOf(readRequest().value(3));
    QVERIFY(first >= 0);
    QCOMPARE(readRequest(), head + photos.mid(first, 3));

    // One of them large, pasted alone, and back.
    Program::click(QPoint((1024 - 933) / 2 + 933 / 3 * 2 - 30, 350 + 700 / 3 / 2 - 30));
    QTRY_VERIFY(Program::brightness(QPoint(100, 50)) > 60);
    paste();
    QCOMPARE(readRequest(), head + photos.mid(first + 1, 1));
    Program::click(QPoint((1024 + 933) / 2 - 30, 700 - 30));
    QTRY_VERIFY(Program::brightness(QPoint(100, 50)) < 10);
    loadEarlierDay(photos);
}

void TestProgram::leave(Program::Answer answer)
{
    Program::click(Program::exitButton());
    QTRY_COMPARE(Program::windows(), 2);
    // Again when the question had not yet found its place.
    QTRY_VERIFY((Program::answer(answer), Program::windows() < 2));
}

void TestProgram::playsALesson()
{
    for (const Program::Answer answer : {Program::Yes, Program::No}) {
        Program program;
        QVERIFY(program.start());
        QCOMPARE(QProcess::execute(ORVANE_PROGRAM, {}), 0); // there is only one
        QCOMPARE(Program::windows(), 1);
        playLesson();
        if (QTest::currentTestFailed())
            return;
        const Checksums taken = checksums(Program::workingFolder());
        QCOMPARE(taken.size(), 12);
        leave(Program::Cancel);
        QCOMPARE(Program::windows(), 1);
        QCOMPARE(program.process().state(), QProcess::Running);
        QCOMPARE(checksums(Program::workingFolder()), taken);

        leave(answer);
        QVERIFY(program.waitForEnd());
        QCOMPARE(program.process().exitCode(), 0);
        QCOMPARE(checksums(saved()), answer == Program::Yes ? taken : Checksums());
        QCOMPARE(Program::captures(), QStringList());
        cleanup();
        init();
    }
}

void TestProgram::losesNothingWhenKilledWhileSaving()
{
    const SmallDisk disk(500);
    if (!disk.isMounted())
        QSKIP("a small file system takes root to mount");
    QSettings settings(QDir::home().filePath(".hollin_orvane.ini"), QSettings::IniFormat);
    settings.setValue("SaveDirectory", disk.path(""));
    settings.sync();
    const QDir target = saved(disk.path(""));

    Program program;
    QVERIFY(program.start());
    takePhoto();
    QFile large(Program::workingFolder().filePath("movie20240101120000.mov"));
    QVERIFY(large.open(QIODevice::WriteOnly) && large.write(QByteArray(400 << 20, 'm')) == 400 << 20);
    large.close();
    const Checksums taken = checksums(Program::workingFolder());
    QCOMPARE(taken.size(), 2);
    Program::click(Program::exitButton());
    QTRY_COMPARE(Program::windows(), 2);
    Program::press("Return");
    QTRY_VERIFY(program.isWritingInto(target));
    program.process().kill();
    QVERIFY(program.waitForEnd());

    // Whatever had been reached, each capture is whole, here or there.
    Checksums found = checksums(Program::workingFolder());
    found.insert(checksums(target));
    QCOMPARE(found, taken);

    Program next;
    QVERIFY(next.start());
    leave(Program::Yes);
    QVERIFY(next.waitForEnd());
    QCOMPARE(checksums(target), taken);
    QCOMPARE(Program::captures(), QStringList());
}

// In the middle of a movie, and in the middle of loading a large file.
void TestProgram::losesNothingAtLogOut()
{
    Program program;
    QVERIFY(program.start());
    takePhoto();
    startMovie();
    program.process().terminate();
    QVERIFY(program.waitForEnd());
    // Saved: the working folder may be gone after the next start of the machine.
    QCOMPARE(Program::captures(), QStringList());
    const Checksums taken = checksums(saved());
    QCOMPARE(taken.size(), 3);
    QProcess player;
    player.start("ffprobe", {"-v", "error", "-show_entries", "format=duration", "-of", "csv=p=0",
                             saved().filePath(saved().entryList({"*.mov"}).first())});
    QVERIFY(player.waitForFinished());
    QVERIFY(player.readAllStandardOutput().trimmed().toDouble() > 1.3);

    const QTemporaryDir earlier;
    QFile large(earlier.filePath("photo20240101120000000.png"));
    QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(2LL << 30));
    Program next;
    QVERIFY(next.start());
    loadFolder(Program::liveRow(4), earlier.path());
    QTRY_VERIFY(next.isWritingInto(Program::workingFolder()));
    next.process().terminate();
    QVERIFY(next.waitForEnd());
    QCOMPARE(next.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(Program::workingFolder().entryList(QDir::Files | QDir::Hidden), QStringList());
    QCOMPARE(checksums(saved()), taken);
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
    QTRY_COMPARE_WITH_TIMEOUT(Program::buttonsShown(), -5, 10000);
}

void TestProgram::warnsOfMissingDevicesAboveItsWindow()
{
    m_devices->pull("cam");
    m_devices->pull("mic");
    Program program;
    QVERIFY(program.start(false));
    // The box in the middle is dark, the window behind it black.
    const QPoint box(440, 430);
    QTRY_VERIFY(Program::brightness(box) > 15);
    QVERIFY(Program::brightness(QPoint(100, 100)) < 5);
    QTest::qWait(700); // longer than the window's own raising takes
    QVERIFY(Program::brightness(box) > 15);
    // A log-out while the warning stands leaves no process behind.
    program.process().terminate();
    QVERIFY(program.waitForEnd());
}

void TestProgram::saysWhichPartIsMissing()
{
    const QTemporaryDir most; // of the system's plug-ins: all but the encoder's
    const QDir all(GSTREAMER_PLUGINS);
    for (const QString &name : all.entryList({"*.so"}, QDir::Files)) {
        if (name != "libgstx264.so")
            QVERIFY(QFile::link(all.filePath(name), most.filePath(name)));
    }
    QProcess program;
    program.start("env", {"GST_PLUGIN_SYSTEM_PATH_1_0=" + most.path(),
                          "GST_REGISTRY_1_0=" + QDir::temp().filePath("registry.bin"), ORVANE_PROGRAM});
    QByteArray words;
    QTRY_VERIFY_WITH_TIMEOUT((words += program.readAllStandardError()).contains("x264enc") &&
                                 words.contains("gstreamer1.0-plugins-ugly"),
                             10000);
    // It is told once, though a camera comes that could be tried again.
    QTRY_COMPARE(Program::windows(), 1);
    Program::press("Return");
    QTRY_COMPARE(Program::rowLooks(Program::screen()), QString("ddddE"));
    m_devices->pull("cam");
    QTest::qWait(1000); // so that it is seen to be gone
    m_devices->plug("cam");
    QVERIFY(!QTest::qWaitFor([] { return Program::windows() > 1; }, 2000));
    program.kill();
    QVERIFY(program.waitForFinished());
}

QTEST_MAIN(TestProgram)
#include "tst_program.moc"
