#include "tests/app/program.h"
#include "tests/support/clipboard.h"
#include "tests/support/testdevices.h"

#include <QSettings>

// All of a lesson by keyboard alone, in the real program: where the focus is, is read off the screen, as
// somebody does who sits at the back.
class TestKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void givesALesson();

private:
    static QRect focusFrame();
    static bool isAround(const QRect &frame, const QPoint &place);
    static void tabTo(const QPoint &button);
    static void pressAt(const QPoint &button, const QString &row);
    static void expectRow(const QString &row);
    static void changeSettings();
    static void askForKeys();
    static void takePhoto();
    static void takeSeries();
    static void recordMovie();
    static void load();
    static void chooseAndShow();
    static void zoomCopyAndPaste();
    static void leave();
};

// The frame around what has the focus; an empty one while nothing has it.
QRect TestKeyboard::focusFrame()
{
    constexpr QRgb frameColour = 0xffffd400;
    const QImage image = Program::screen().convertToFormat(QImage::Format_RGB32);
    QRect frame;
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (line[x] == frameColour)
                frame |= QRect(x, y, 1, 1);
        }
    }
    return frame;
}

bool TestKeyboard::isAround(const QRect &frame, const QPoint &place)
{
    // That of one button, not of several.
    return frame.contains(place) && frame.width() <= Program::buttonWidth();
}

void TestKeyboard::tabTo(const QPoint &button)
{
    constexpr int mostStops = 12; // five buttons, nine photos at most, and the two in the corner
    for (int stop = 0; stop <= mostStops; ++stop) {
        const auto isThere = [&button] { return isAround(focusFrame(), button); };
        if (QTest::qWaitFor(isThere, stop == 0 ? 1000 : 400))
            return;
        Program::press("Tab");
    }
    QFAIL(qPrintable(QString("no way by Tab to %1,%2").arg(button.x()).arg(button.y())));
}

void TestKeyboard::expectRow(const QString &row)
{
    QString seen;
    const auto isSeen = [&] { return (seen = Program::rowLooks(Program::screen())) == row; };
    QVERIFY2(QTest::qWaitFor(isSeen, 20000), qPrintable(seen + ", not " + row));
}

void TestKeyboard::pressAt(const QPoint &button, const QString &row)
{
    tabTo(button);
    Program::press("space");
    expectRow(row);
}

void TestKeyboard::changeSettings()
{
    tabTo(Program::settingsButton());
    Program::press("Return");
    QTRY_COMPARE(Program::windows("Settings"), 1);
    // The self-timer off, so that the series goes by hand; of two photos.
    Program::xdotool({"key", "space", "Tab", "Up", "Up", "Return"});
    QTRY_COMPARE(Program::windows("Settings"), 0);
    const QSettings file(QDir::home().filePath(".hollin_orvane.ini"), QSettings::IniFormat);
    QCOMPARE(file.value("AutoShoot").toInt(), 0);
    QCOMPARE(file.value("ContinuShootCount").toInt(), 2);
}

void TestKeyboard::askForKeys()
{
    const auto isDimmed = [] { return Program::brightness({60, 200}) < 50; };
    QVERIFY(!isDimmed());
    Program::press("F1");
    QTRY_VERIFY(isDimmed());
    Program::press("F1");
    QTRY_VERIFY(!isDimmed());
}

// Turned and larger, at the second try.
void TestKeyboard::takePhoto()
{
    Program::xdotool({"key", "r", "plus", "plus", "plus", "plus"});
    pressAt(Program::liveRow(1), "ddddd");
    QTRY_VERIFY(Program::showsPreview());
    pressAt(Program::retryButton(), "EEEEE");
    pressAt(Program::liveRow(1), "ddddd");
    QTRY_VERIFY(Program::showsPreview());
    pressAt(Program::acceptButton(), "EEE.");
    QCOMPARE(Program::captures().size(), 1);
    const QImage photo(Program::workingFolder().filePath(Program::captures().first()));
    QCOMPARE(photo.size(), QSize(480, 640));
    QVERIFY(photo.pixelColor(270, 340).hsvSaturation() < 40); // the white square in the middle has grown
    pressAt(Program::row(0), "EEEEE");
}

void TestKeyboard::takeSeries()
{
    tabTo(Program::liveRow(2));
    Program::press("space");
    QTRY_COMPARE(Program::captures().size(), 2);
    QTRY_VERIFY(isAround(focusFrame(), Program::liveRow(2)));
    Program::press("space");
    QTRY_COMPARE(Program::captures().size(), 3);
    expectRow("EEE.");
    pressAt(Program::row(0), "EEEEE");
}

void TestKeyboard::recordMovie()
{
    pressAt(Program::liveRow(3), "dddEd");
    pressAt(Program::liveRow(3), "EEE.");
    QTRY_COMPARE(Program::captures({"movie*.mov"}).size(), 1);
    tabTo(Program::row(1)); // Play
    Program::press("space");
    pressAt(Program::row(2), "EdEE"); // the list of movies
    pressAt(Program::row(3), "EdEE"); // of photos
}

void TestKeyboard::load()
{
    const QDir earlier(QDir::home().filePath("earlier"));
    QVERIFY(earlier.mkpath(".") && QImage(64, 48, QImage::Format_RGB32).save(earlier.filePath("photo0.png")));
    tabTo(Program::row(2));
    Program::press("space");
    QTRY_COMPARE(Program::windows("Load Directory"), 1);
    Program::xdotool({"type", earlier.path()});
    Program::press("Return");
    QTRY_COMPARE(Program::windows(), 2);
    QTRY_VERIFY((Program::press("Return"), Program::windows() == 1));
    QCOMPARE(Program::captures({"photo*"}).size(), 4);
}

// The first and the third of four.
void TestKeyboard::chooseAndShow()
{
    const auto isStrip = [] { return focusFrame().top() < Program::height() - Program::buttonHeight(); };
    for (int stop = 0; stop < 8 && !(focusFrame().isValid() && isStrip()); ++stop) {
        Program::press("Tab");
        QTest::qWait(200);
    }
    const QRect first = focusFrame();
    Program::xdotool({"key", "space", "Right"});
    QTRY_VERIFY(focusFrame().left() > first.right());
    const QRect second = focusFrame();
    Program::press("Right");
    QTRY_VERIFY(focusFrame().left() > second.right());
    Program::press("space");
    expectRow("EEEE");
    pressAt(Program::row(1), "EEE.");
}

void TestKeyboard::zoomCopyAndPaste()
{
    const auto isZoomButton = [] {
        const QRect frame = focusFrame();
        return frame.isValid() && frame.bottom() < Program::height() - Program::buttonHeight();
    };
    for (int stop = 0; stop < 8 && !QTest::qWaitFor(isZoomButton, 300); ++stop)
        Program::press("Tab");
    const QRect zoom = focusFrame();
    Program::press("space");
    QTRY_VERIFY(focusFrame().isValid() && focusFrame() != zoom); // the way back, at another place
    Program::press("ctrl+c");
    QTRY_VERIFY(onClipboard("text/uri-list").startsWith("file:///"));
    const QDir requests(Program::workingFolder().filePath("tmp"));
    tabTo(Program::row(1));
    Program::press("space");
    QTRY_COMPARE(requests.entryList(QDir::Files).size(), 1);
    QFile request(requests.filePath(requests.entryList(QDir::Files).value(0)));
    QVERIFY(request.open(QIODevice::ReadOnly));
    QCOMPARE(request.readAll().count('\n'), 4); // three lines, and the one photo that is seen
}

void TestKeyboard::leave()
{
    tabTo(Program::exitButton());
    Program::press("space");
    QTRY_COMPARE(Program::windows(), 2);
    Program::press("Return"); // Yes
}

void TestKeyboard::givesALesson()
{
    TestDevices devices;
    devices.camera("cam").formats("YUY2 640x480 30").content("quarters");
    devices.microphone("mic").sound("silence");
    devices.write();
    Program program;
    QVERIFY(program.start());
    for (void (*part)() : {changeSettings, askForKeys, takePhoto, takeSeries, recordMovie, load,
                           chooseAndShow, zoomCopyAndPaste, leave}) {
        part();
        if (QTest::currentTestFailed())
            return;
    }
    QVERIFY(program.waitForEnd());
    const QDir saved(QDir::home().filePath("VeltrixCamera/" + QDate::currentDate().toString("yyyyMMdd")));
    QCOMPARE(saved.entryList({"photo*.png"}, QDir::Files).size(), 4);
    QCOMPARE(saved.entryList({"movie*.mov"}, QDir::Files).size(), 1);
}

QTEST_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
