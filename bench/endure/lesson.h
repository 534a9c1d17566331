// What a teacher does with the real program, a step at a time, for the programs that do it many times over.
#pragma once

#include "tests/app/program.h"
#include "tests/support/testdevices.h"

#include <functional>
#include <memory>

// A line of the table: the figure is at most the limit, or it is a failure. What is told is counted for
// failures().
void tell(const QString &promise, double figure, double limit, const char *unit);
int failures();

// The captures in the folders and below: where each name stands.
QMultiMap<QString, QString> capturesIn(const QStringList &folders);

// Thrown by a step in the middle of which the program has ended.
struct ProgramHasEnded {
};

// Thrown, once it was answered, by a step that does not go on for a message.
struct MessageIsShown {
};

// A camera and a microphone, the settings that the steps below count on, and one run of the program after
// another.
class Lesson
{
public:
    explicit Lesson(const QString &formats = "YUY2 1280x720 30");

    // Starts it with an environment; what it tells goes to stderr. Its picture may take some time.
    void launch(const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment());
    // Waits for the condition, as long as a disk may hang; ends the whole program, telling what did not come.
    // A window more than these is a message.
    void await(const char *what, const std::function<bool()> &condition, int windows = 1);

    void awaitLive();

    // Each begins and ends with the live picture.
    void takePhoto();
    // Pasted, or only looked at.
    void takeSeries(bool isPasted = false);
    void startMovie();
    // The movie is looked at for so long.
    void stopMovie(int lookMilliseconds = 0);
    void recordMovie(int lookMilliseconds = 0); // of a second
    void walk();
    void loseCamera();
    void changeSettings();
    // Returns what the dialog shows at its end.
    QImage load(const QString &folder);
    // Ends the program, which asks nothing when there is nothing to save.
    void leaveSaving();

    TestDevices devices;
    std::unique_ptr<Program> program;

private:
    // A press is not taken while the one before is still at work, which on a busy machine is a moment longer
    // than its photo shows.
    void pressUntil(const char *what, const QPoint &button, const std::function<bool()> &condition);
};
