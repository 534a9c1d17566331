#include "tests/endure/lesson.h"

#include "tests/app/walk.h"

#include <QSettings>

#include <cstdio>

namespace
{

int failed = 0;

bool isPictureShown()
{
    return Program::brightness(QPoint(400, 300)) > 30;
}

} // namespace

void await(const char *what, const std::function<bool()> &condition, int limitMilliseconds)
{
    if (QTest::qWaitFor(condition, limitMilliseconds))
        return;
    Program::screen().save(QString("/tmp/endure-failed.png"));
    qFatal("this did not come: %s; the row shows %s", what, qPrintable(Program::rowLooks(Program::screen())));
}

void tell(const QString &promise, double figure, double limit, const char *unit)
{
    const bool isKept = figure <= limit;
    failed += isKept ? 0 : 1;
    std::printf("%s\t%.4g\t%.4g\t%s\t%s\n", qPrintable(promise), figure, limit, unit, isKept ? "pass" : "FAIL");
    std::fflush(stdout);
}

int failures()
{
    return failed;
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

bool Lesson::isLive()
{
    return isPictureShown() && Program::rowLooks(Program::screen()) == "EEEEE";
}

void Lesson::takePhoto() const
{
    Program::click(Program::liveRow(1));
    await("the photo", Program::showsPreview);
    Program::click(Program::acceptButton());
    await("the photo's review", [] { return Program::buttonsShown() == 3; });
    Program::click(Program::row(0));
    await("the live picture", isLive);
}

void Lesson::takeSeries() const
{
    const int before = Program::captures({"photo*"}).size();
    for (int shot = 1; shot <= 3; ++shot) {
        Program::click(Program::liveRow(2));
        await("a photo of the series", [=] { return Program::captures({"photo*"}).size() == before + shot; });
    }
    await("the series' grid", [] { return Program::buttonsShown() == 3; });
    Program::click(Program::row(0));
    await("the live picture", isLive);
}

void Lesson::recordMovie(int milliseconds) const
{
    Program::click(Program::liveRow(3));
    await("the recording", [] { return Program::rowLooks(Program::screen()) == "dddEd"; });
    QTest::qWait(milliseconds);
    Program::click(Program::liveRow(3));
    await("the movie", [] { return Program::buttonsShown() == 3 && isPictureShown(); });
    Program::click(Program::row(0));
    await("the live picture", isLive);
}

void Lesson::walk() const
{
    const QString missed = walkThroughAllScreens();
    if (!missed.isEmpty())
        qFatal("the walk missed %s", qPrintable(missed));
    Program::click(Program::liveRow(0)); // out of the series
    await("the live picture", isLive);
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
