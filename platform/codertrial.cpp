#include "platform/codertrial.h"

#include <QElapsedTimer>
#include <QProcess>

#include <algorithm>
#include <csignal>
#include <cstdlib>

#include <sys/prctl.h>
#include <sys/resource.h>

namespace
{

using namespace std::chrono_literals;

// Without a step forward.
constexpr int stepLimit = 5000; // milliseconds
// Low, but not so low that what else goes on would decide how long it takes.
constexpr int priority = 10;

constexpr int frameCount = 2 * CoderTrial::framesPerSecond;
constexpr int rowsPerFrame = 4; // by so many the page moves
// Of the pictures. More of them would be as many frames of delay, and of a movie's end that comes late.
constexpr int mostHeldBack = 1;

constexpr int smallWidth = 64;
constexpr int smallHeight = 36;
constexpr int smallBytes = smallWidth * smallHeight;
// Of a small picture's brightness against software's, on the average. Another picture differs by tens.
constexpr int mostDifference = 6;

// Less than this part of software's is a gain that is not measured by chance.
constexpr double gain = 0.9;

const char program[] = "gst-launch-1.0";

class TrialProcess : public QProcess
{
protected:
    void setupChildProcess() override
    {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        setpriority(PRIO_PROCESS, 0, priority);
    }
};

// Brightness, of boxes with the noise of a camera; with as many rows more as it moves by.
QByteArray makePage(uint noise)
{
    const int rows = CoderTrial::picture.height() + frameCount * rowsPerFrame;
    QByteArray page(rows * CoderTrial::picture.width(), Qt::Uninitialized);
    for (int i = 0; i < page.size(); ++i) {
        noise = noise * 1664525 + 1013904223;
        const int column = i % CoderTrial::picture.width() / 90;
        const int row = i / CoderTrial::picture.width() / 70;
        page[i] = char(((column * column + row) % 3 ? 200 : 60) + int(noise >> 29));
    }
    return page;
}

// The pictures are made small the quickest way, as what is not the coders' hides the difference between them.
QStringList pipeline(const QString &encoder, const QString &decoder)
{
    const QString all =
        QStringLiteral("-q fdsrc fd=0 blocksize=65536 ! rawvideoparse format=i420 width=%1 "
                       "height=%2 framerate=%3/1 ! %4 "
                       "! h264parse ! %5 ! video/x-raw ! videoconvertscale method=nearest-neighbour "
                       "! video/x-raw,format=GRAY8,width=%6,height=%7 ! fdsink fd=1")
            .arg(CoderTrial::picture.width())
            .arg(CoderTrial::picture.height())
            .arg(CoderTrial::framesPerSecond)
            .arg(encoder, decoder)
            .arg(smallWidth)
            .arg(smallHeight);
    return all.split(QLatin1Char(' '));
}

std::chrono::microseconds processorTimeOfChildren()
{
    rusage used{};
    getrusage(RUSAGE_CHILDREN, &used);
    return std::chrono::seconds(used.ru_utime.tv_sec + used.ru_stime.tv_sec) +
           std::chrono::microseconds(used.ru_utime.tv_usec + used.ru_stime.tv_usec);
}

bool give(QProcess &process, const char *bytes, qint64 size)
{
    process.write(QByteArray::fromRawData(bytes, int(size)));
    while (process.bytesToWrite() > 0) {
        if (!process.waitForBytesWritten(stepLimit))
            return false;
    }
    return true;
}

bool giveFrames(QProcess &process)
{
    constexpr int pixels = CoderTrial::picture.width() * CoderTrial::picture.height();
    const QByteArray pages[] = {makePage(1),
                                makePage(2)}; // in turn, since no frame has the noise of the last one
    const QByteArray colours(pixels / 2, char(128));
    for (int i = 0; i < frameCount; ++i) {
        const char *brightness =
            pages[i % 2].constData() + qptrdiff(i) * rowsPerFrame * CoderTrial::picture.width();
        if (!give(process, brightness, pixels) || !give(process, colours.constData(), colours.size()))
            return false;
    }
    return true;
}

// Before there is an end of the stream, which drives out the rest.
bool takeAllButHeldBack(QProcess &process)
{
    while (process.bytesAvailable() < qint64(frameCount - mostHeldBack) * smallBytes) {
        if (!process.waitForReadyRead(stepLimit))
            return false;
    }
    return true;
}

bool takeRest(QProcess &process)
{
    process.closeWriteChannel();
    return process.waitForFinished(stepLimit) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == EXIT_SUCCESS;
}

QString faultOf(QProcess &process)
{
    if (process.error() == QProcess::FailedToStart)
        return QStringLiteral("%1: %2").arg(QLatin1String(program), process.errorString());
    if (process.error() == QProcess::Timedout)
        return QStringLiteral("It hangs, or holds pictures back.");
    process.waitForFinished(stepLimit);
    const QString words = QString::fromLocal8Bit(process.readAllStandardError()).section('\n', 0, 0);
    if (process.state() == QProcess::NotRunning && process.exitStatus() == QProcess::CrashExit)
        return QStringLiteral("It crashes. ") + words;
    return QStringLiteral("It fails. ") + words;
}

int difference(const QByteArray &one, const QByteArray &other)
{
    qint64 sum = 0;
    for (int i = 0; i < one.size(); ++i)
        sum += std::abs(uchar(one[i]) - uchar(other[i]));
    return int(sum / qMax(1, one.size()));
}

double share(const CoderTrial &hardware, const CoderTrial &software)
{
    return double(hardware.processorTime.count()) / double(software.processorTime.count());
}

bool takesTooMuch(const CoderTrial &hardware, const CoderTrial &software)
{
    return share(hardware, software) > gain;
}

bool isTooSlow(const CoderTrial &hardware, const CoderTrial &software)
{
    constexpr std::chrono::milliseconds asLongAsShown = 1000ms * frameCount / CoderTrial::framesPerSecond;
    return hardware.length > std::max(asLongAsShown, software.length);
}

} // namespace

CoderTrial tryCoders(const QString &encoder, const QString &decoder)
{
    CoderTrial trial;
    const auto before = processorTimeOfChildren();
    QElapsedTimer clock;
    clock.start();
    TrialProcess process;
    process.start(QLatin1String(program), pipeline(encoder, decoder));
    if (!giveFrames(process) || !takeAllButHeldBack(process) || !takeRest(process))
        trial.fault = faultOf(process);
    process.kill();
    process.waitForFinished(); // also for its processor time
    trial.length = std::chrono::milliseconds(clock.elapsed());
    trial.processorTime = processorTimeOfChildren() - before;
    trial.pictures = process.readAllStandardOutput();
    return trial;
}

QString comparison(const CoderTrial &hardware, const CoderTrial &software)
{
    return QStringLiteral("%1 ms of the processor where software takes %2")
        .arg(hardware.processorTime.count() / 1000)
        .arg(software.processorTime.count() / 1000);
}

bool isCloseCall(const CoderTrial &hardware, const CoderTrial &software)
{
    return hardware.fault.isNull() && share(hardware, software) < 1 &&
           (takesTooMuch(hardware, software) || isTooSlow(hardware, software));
}

QString shortcoming(const CoderTrial &hardware, const CoderTrial &software)
{
    if (!hardware.fault.isNull())
        return hardware.fault;
    if (hardware.pictures.size() != software.pictures.size())
        return QStringLiteral("It loses pictures.");
    if (difference(hardware.pictures, software.pictures) > mostDifference)
        return QStringLiteral("Its pictures are wrong.");
    if (takesTooMuch(hardware, software))
        return QStringLiteral("It takes %1.").arg(comparison(hardware, software));
    if (isTooSlow(hardware, software))
        return QStringLiteral("It does not keep up: it takes %1 ms.").arg(hardware.length.count());
    return {};
}
