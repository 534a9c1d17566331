#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

#include <chrono>

// Processor seconds that a process has taken until now, all its threads together. It must be running.
double processorSeconds(qint64 process);

// The process of the X server that serves $DISPLAY on this machine.
qint64 xServerProcess();

// A program whose processor time is looked at while it runs. It ends with this object.
class MeasuredProcess
{
public:
    // Ends the whole benchmark when the program does not start.
    MeasuredProcess(const QString &program, const QStringList &arguments);
    ~MeasuredProcess();
    MeasuredProcess(const MeasuredProcess &) = delete;
    MeasuredProcess &operator=(const MeasuredProcess &) = delete;

    double processorTime() const { return processorSeconds(m_process.processId()); }

    // Megabytes that it holds now, its share of what it has in common with others. Of the kernel's buffers
    // those that it has mapped, as a camera's are; not what only a driver or a graphics card sees.
    double memory() const;

    // The number behind the next "rendered: " of what the program prints. Ends the whole benchmark when none
    // comes in ten seconds.
    int nextRendered();

    // Asks the program to finish its work as Ctrl+C does, and waits for its end.
    void interrupt();

private:
    QProcess m_process;
};

// gst-launch-1.0 with the pipeline told, its options first.
QStringList launchLine(const QString &pipeline);
