// What a teacher does with the real program, a step at a time, for the programs that do it many times over.
#pragma once

#include "tests/app/program.h"
#include "tests/support/testdevices.h"

#include <functional>

// Waits for the condition; ends the whole program, telling what did not come.
void await(const char *what, const std::function<bool()> &condition, int limitMilliseconds = 20000);

// A line of the table: the figure is at most the limit, or it is a failure. What is told is counted for
// failures().
void tell(const QString &promise, double figure, double limit, const char *unit);
int failures();

// A camera and a microphone, and the settings that the steps below count on.
class Lesson
{
public:
    explicit Lesson(const QString &formats = "YUY2 1280x720 30");

    // Each begins and ends with the live picture.
    void takePhoto() const;
    void takeSeries() const;
    void recordMovie(int milliseconds) const;
    void walk() const;
    void loseCamera();

    static bool isLive();

    TestDevices devices;
};
