#include "bench/endure/lesson.h"

#include "tests/app/walk.h"

#include <QDirIterator>
#include <QSettings>

#include <cstdio>

namespace
{

int failed = 0;

bool isPictureShown()
{
    return Program::brightness(QPoint(400, 300)) > 30;
}

bool isLive()
{
    return isPictureShown() && Program::rowLooks(Program::screen()) == "EEEEE";
}

// A screen without the live row, with so many buttons. Held up by the disk it has only grey ones for a while.
bool isReview(int buttons)
{
    const QString looks = Program::rowLooks(Program::screen());
    return looks.startsWith('E') && looks.size() == 4 && looks.size() - looks.count('.') == buttons;
}

bool isRecording()
{
    return Program::rowLooks(Program::screen()) == "dddEd";
}

// Before the program's window is shown a message is alone; the window fills the screen.
bool isMessageAlone()
{
    const QByteArray window = Program::xdotool(
        {"search", "--onlyvisible", "--name", "^Orvane", "getwindowgeometry", "--shell", "%1"});
    const int height = QString(window).section("HEIGHT=", 1).section('\n', 0, 0).toInt();
    return height > 0 && height < Program::height() / 2;
}

QImage dialogPicture()
{
    constexpr int fromBelow = 1;
    const QList<QByteArray> windows =
        Program::xdotool({"search", "--onlyvisible", "--name", "^Orvane"}).split('\n');
    return QGuiApplication::primaryScreen()->grabWindow(windows.value(fromBelow).toULong()).toImage();
}

// While the dialog waits, its bar moves.
bool standsStill(QImage *dialog)
{
    constexpr int barMilliseconds = 300; // many of its steps
    *dialog = dialogPicture();
    QTest::qWait(barMilliseconds);
    return dialogPicture() == *dialog;
}

} // namespace

void tell(const QString &promise, double figure, double limit, const char *unit)
{
    const bool isKept = figure <= limit;
    failed += isKept ? 0 : 1;
    std::printf("%s\t%.4g\t%.4g\t%s\t%s\n", qPrintable(promise), figure, limit, unit,
                isKept ? "pass" : "FAIL");
    std::fflush(stdout);
}

int failures()
{
    return failed;
}

QMultiMap<QString, QString> capturesIn(const QStringList &folders)
{
    QMultiMap<QString, QString> all;
    for (const QString &folder : folders) {
        QDirIterator files(folder, {"photo*", "movie*"}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            files.next();
            all.insert(files.fileName(), files.filePath());
        }
    }
    return all;
}

Lesson::Lesson(const QString &formats)
{
    devices.camera("cam").name("Board Cam").formats(formats).content("page");
    devices.microphone("mic").sound("beep");
    devices.write();
    QSettings settings(QDir::home().filePath(".hollin_orvane.ini"), QSettings::IniFormat);
    settings.setValue("AutoShoot", 0);
    settings.setValue("ContinuShootCount", 3);
}

void Lesson::launch(const QProcessEnvironment &environment)
{
    program.reset(); // it, too, has the name
    program = std::make_unique<Program>();
    program->process().setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program->process().setProcessEnvironment(environment);
    program->process().start(ORVANE_PROGRAM, QStringList());
    if (!program->process().waitForStarted())
        throw ProgramHasEnded();
}

void Lesson::awaitLive()
{
    await("the live picture", isLive);
}

void Lesson::await(const char *what, const std::function<bool()> &condition, int windows)
{
    constexpr int patienceMilliseconds = 4000;
    constexpr int limitMilliseconds = 90000;
    const auto hasEnded = [this] { return program->process().state() == QProcess::NotRunning; };
    const auto isOver = [&] { return hasEnded() || condition(); };
    QElapsedTimer waited;
    for (waited.start(); !QTest::qWaitFor(isOver, patienceMilliseconds);) {
        const int shown = Program::windows();
        if (shown > windows || (shown == 1 && isMessageAlone())) {
            std::fprintf(stderr, "a message comes before %s\n", what);
            Program::press("Return");
            throw MessageIsShown();
        }
        if (waited.hasExpired(limitMilliseconds))
            qFatal("this did not come: %s; the row shows %s", what,
                   qPrintable(Program::rowLooks(Program::screen())));
    }
    if (hasEnded())
        throw ProgramHasEnded();
}

void Lesson::pressUntil(const char *what, const QPoint &button, const std::function<bool()> &condition)
{
    constexpr int answerMilliseconds = 5000;
    QElapsedTimer pressed;
    await(what, [&] {
        const bool isThere = condition();
        if (!isThere && (!pressed.isValid() || pressed.hasExpired(answerMilliseconds))) {
            Program::click(button);
            pressed.start();
        }
        return isThere;
    });
}

void Lesson::takePhoto()
{
    Program::click(Program::liveRow(1));
    await("the photo", Program::showsPreview);
    Program::click(Program::acceptButton());
    await("the photo's review", [] { return isReview(3); });
    Program::click(Program::row(0));
    awaitLive();
}

void Lesson::takeSeries(bool isPasted)
{
    const int before = Program::captures({"photo*"}).size();
    for (int shot = 1; shot <= 3; ++shot) {
        pressUntil("a photo of the series", Program::liveRow(2),
                   [=] { return Program::captures({"photo*"}).size() >= before + shot; });
    }
    await("the series' grid", [] { return isReview(3); });
    if (isPasted)
        Program::click(Program::row(1));
    Program::click(Program::row(0));
    awaitLive();
}

void Lesson::startMovie()
{
    Program::click(Program::liveRow(3));
    await("the recording", isRecording);
}

void Lesson::stopMovie(int lookMilliseconds)
{
    await("the button that stops", isRecording);
    Program::click(Program::liveRow(3));
    await("the movie", [] { return isReview(3) && isPictureShown(); });
    QTest::qWait(lookMilliseconds);
    Program::click(Program::row(0));
    awaitLive();
}

void Lesson::recordMovie(int lookMilliseconds)
{
    constexpr int length = 1000;
    startMovie();
    QTest::qWait(length);
    stopMovie(lookMilliseconds);
}

void Lesson::walk()
{
    const QString missed = walkThroughAllScreens();
    if (!missed.isEmpty())
        qFatal("the walk missed %s", qPrintable(missed));
    pressUntil("the end of the series", Program::liveRow(0), isLive);
}

void Lesson::loseCamera()
{
    constexpr int handMilliseconds = 200; // nobody plugs it in sooner
    devices.pull("cam");
    await("the message", [] { return Program::windows() == 2; });
    Program::press("Return");
    await("the message's end", [] { return Program::windows() == 1; });
    QTest::qWait(handMilliseconds);
    devices.plug("cam");
    await("the camera's return", isLive);
}

void Lesson::changeSettings()
{
    Program::click(Program::settingsButton());
    await("the settings", [] { return Program::windows("") == 2; });
    Program::press("Return");
    await("the live picture", [] { return Program::windows("") == 1 && isLive(); });
}

QImage Lesson::load(const QString &folder)
{
    Program::click(Program::liveRow(4));
    await("the list", [] { return isReview(4); });
    Program::click(Program::row(2));
    await("the chooser", [] { return Program::windows("Load Directory") == 1; });
    Program::xdotool({"type", folder});
    Program::press("Return");
    await("the loading", [] { return Program::windows() == 2; });
    QImage told;
    await(
        "the loading's end", [&told] { return standsStill(&told); }, 2);
    await(
        "the dialog's end", [] { return Program::press("Return"), Program::windows() == 1; }, 2);
    Program::click(Program::row(0));
    awaitLive();
    return told;
}

void Lesson::leaveSaving()
{
    try {
        Program::click(Program::exitButton());
        await("the question", [] { return Program::windows() == 2; });
        await("the answer", [] { return Program::answer(Program::Yes), Program::windows() < 2; });
        await("the end", [] { return false; });
    } catch (const ProgramHasEnded &) {
    }
}
