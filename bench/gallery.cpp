// gallery FOLDER: goes through every screen and dialog of the real program on the display as it is, and
// leaves a picture of each in the folder.

#include "tests/app/program.h"
#include "tests/support/testdevices.h"
#include "util/desktop/screenscale.h"

#include <QSettings>

namespace
{

constexpr int photosInGrid = 3;
constexpr int mostChosen = 9;
constexpr int photosToLoad = 40; // which takes long enough to be looked at

int missed = 0;

// What does not come is told and counted, and the walk goes on.
template<class Condition> void waitFor(const char *what, Condition condition, int milliseconds = 20000)
{
    if (QTest::qWaitFor(condition, milliseconds))
        return;
    qWarning("waited in vain for %s", what);
    ++missed;
}

class Gallery
{
public:
    explicit Gallery(const QString &folder) : m_folder(folder) {}

    void walk();

private:
    void prepare();
    void takePhotos();
    void recordMovie();
    void review();
    void zoom();
    void choose(int count);
    void view();
    void load();
    void chooseTooMany();
    void settings();
    void leave();

    void press(const QPoint &button, const QString &row);
    static void waitForRow(const QString &row);
    static void waitForWindows(int count);
    static void waitUntilStill();
    void shoot(const QString &name);
    void shootMoving(const QString &name);

    const QDir m_folder;
    int m_count = 0;
    TestDevices m_devices;
    Program m_program;
};

void Gallery::walk()
{
    prepare();
    takePhotos();
    recordMovie();
    review();
    settings();
    leave();
}

void Gallery::prepare()
{
    for (const char *camera : {"Board Cam", "Veltrix CX-20 Document Camera"})
        m_devices.camera(camera).name(camera).formats("YUY2 1280x720 30").content("page");
    m_devices.microphone("mic").sound("silence");
    m_devices.write();
    if (!m_program.start(false))
        qFatal("the program does not start");
    shoot("devicechoice");
    Program::press("Return");
    waitForRow("EEEEE");
    waitFor("the live picture", [] {
        return Program::brightness({Program::width() / 2, Program::height() / 3}) > 30;
    });
    shoot("live");
    Program::press("F1");
    shoot("keys");
    Program::press("F1");
    Program::press("r");
    shoot("turned");
    Program::xdotool({"key", "r", "r", "r"});
}

void Gallery::takePhotos()
{
    press(Program::liveRow(1), "ddddd");
    waitFor("the preview", Program::showsPreview);
    shoot("preview");
    press(Program::acceptButton(), "EEE.");
    shoot("photo");
    press(Program::row(0), "EEEEE");
    press(Program::liveRow(2), "EdEdd"); // with the self-timer: its countdown begins a second later
    QTest::qWait(2000);
    shoot("countdown");
    waitFor(
        "the series", [] { return Program::captures().size() >= photosInGrid; }, 30000);
    shoot("series");
    press(Program::liveRow(0), "EEEEE");
}

void Gallery::recordMovie()
{
    press(Program::liveRow(3), "dddEd");
    QTest::qWait(1500);
    shoot("recording");
    press(Program::liveRow(3), "EEE.");
    shoot("movie");
    Program::click(Program::row(1));
    QTest::qWait(700);
    shootMoving("playing");
    press(Program::row(2), "EdEE");
    shoot("movies");
}

void Gallery::review()
{
    press(Program::row(3), "EdEE");
    shoot("list");
    choose(photosInGrid);
    waitForRow("EEEE");
    shoot("chosen");
    press(Program::row(1), "EEE.");
    shoot("grid");
    zoom();
    press(Program::row(2), "EdEE");
    view();
    load();
    chooseTooMany();
    press(Program::row(0), "EEEEE");
}

// The first ones, by key.
void Gallery::choose(int count)
{
    const QString language = QSettings("Quenmark", "Veltrix Software").value("locale").toString();
    const QString next = QLocale(language).textDirection() == Qt::RightToLeft ? "Left" : "Right";
    Program::press("space");
    for (int more = 1; more < count; ++more) {
        Program::press(next);
        Program::press("space");
    }
}

void Gallery::view()
{
    choose(1);
    waitForRow("EEEE");
    press(Program::row(1), "EEE.");
    shoot("view");
    press(Program::row(2), "EdEE");
}

void Gallery::chooseTooMany()
{
    choose(mostChosen + 1);
    waitForWindows(2);
    shoot("toomany");
    Program::press("Return");
    waitForWindows(1);
}

void Gallery::zoom()
{
    for (int button = 0; button < 2; ++button)
        Program::press("Tab");
    shoot("focus");
    for (int button = 0; button < 2; ++button)
        Program::press("Tab");
    Program::press("space");
    shoot("zoomed");
}

void Gallery::load()
{
    const QDir lesson(QDir::home().filePath("Earlier lessons/20260301"));
    lesson.mkpath(".");
    const QString photo = Program::workingFolder().filePath(Program::captures({"photo*"}).first());
    for (int i = 0; i < photosToLoad; ++i)
        QFile::copy(photo, lesson.filePath(QString("photo202603010900%1.png").arg(i, 5, 10, QChar('0'))));
    Program::click(Program::row(2));
    QTest::qWait(1000);
    shoot("folderchooser");
    Program::xdotool({"type", lesson.path()});
    Program::press("Return");
    waitForWindows(2);
    shootMoving("loading");
    waitFor("the loaded photos", [] { return Program::captures().size() > photosToLoad; });
    QTest::qWait(700);
    shoot("loaded");
    Program::press("Return");
    waitForWindows(1);
}

void Gallery::settings()
{
    Program::click(Program::settingsButton());
    QTest::qWait(700);
    shoot("settings");
    Program::press("alt+Down");
    Program::xdotool({"key", "Tab", "alt+Down"});
    shoot("choices");
    Program::xdotool({"key", "Escape", "Escape"});
    waitForRow("EEEEE");
}

void Gallery::leave()
{
    Program::click(Program::exitButton());
    waitForWindows(2);
    shoot("savequestion");
    Program::press("Escape");
    waitForWindows(1);
    m_devices.pull("Board Cam");
    m_devices.pull("Veltrix CX-20 Document Camera");
    waitForWindows(2);
    shoot("message");
}

void Gallery::press(const QPoint &button, const QString &row)
{
    Program::click(button);
    waitForRow(row);
}

void Gallery::waitForRow(const QString &row)
{
    waitFor(qPrintable(row), [&row] { return Program::rowLooks(Program::screen()) == row; });
}

void Gallery::waitForWindows(int count)
{
    waitFor("windows", [count] { return Program::windows() == count; });
}

// What flickers or moves all the time is not waited for.
void Gallery::waitUntilStill()
{
    constexpr int apart = 200;
    QImage before;
    const auto isStill = [&before] {
        QTest::qWait(apart);
        const QImage now = Program::screen();
        return std::exchange(before, now) == now;
    };
    static_cast<void>(QTest::qWaitFor(isStill, 3000));
}

void Gallery::shoot(const QString &name)
{
    // A pointer over a button would be followed by its tooltip.
    Program::xdotool({"mousemove", "0", "0"});
    waitUntilStill();
    shootMoving(name);
}

void Gallery::shootMoving(const QString &name)
{
    const QString number = QString("%1").arg(++m_count, 2, 10, QChar('0'));
    if (!Program::screen().save(m_folder.filePath(number + '-' + name + ".png")))
        qFatal("a picture cannot be written");
}

} // namespace

int main(int argc, char **argv)
{
    followScreenScale();
    QGuiApplication application(argc, argv);
    if (argc != 2)
        qFatal("usage: gallery FOLDER");
    Gallery(QString::fromLocal8Bit(argv[1])).walk();
    return missed > 0;
}
