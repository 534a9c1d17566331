// A movie that nobody ends.

#include "bench/endure/lesson.h"

#include <algorithm>

namespace
{

constexpr int seconds = 600;
constexpr int framesPerSecond = 30;

QByteArray output(const QString &tool, const QStringList &arguments)
{
    constexpr int limitMilliseconds = 300000;
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(tool, arguments);
    const bool isWell = process.waitForFinished(limitMilliseconds) &&
                        process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return process.readAll() + (isWell ? "" : "it fails\n");
}

// Seconds at which the movie's pictures are to be shown, in order.
QVector<double> pictureTimes(const QString &movie)
{
    QVector<double> times;
    for (const QByteArray &line : output("ffprobe", {"-v", "error", "-select_streams", "v", "-show_entries",
                                                     "packet=pts_time", "-of", "csv=p=0", movie})
                                      .split('\n')) {
        if (!line.isEmpty())
            times << line.split(',').first().toDouble();
    }
    std::sort(times.begin(), times.end());
    return times;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Lesson lesson;
    lesson.launch();
    lesson.awaitLive();
    lesson.startMovie();
    const bool hasEnded = QTest::qWaitFor([] { return Program::buttonsShown() == 3; }, (seconds + 30) * 1000);
    const QString movie = Program::workingFolder().filePath(Program::captures({"movie*.mov"}).value(0));
    const QVector<double> times = pictureTimes(movie);
    int lost = times.isEmpty() ? seconds * framesPerSecond : 0;
    for (int i = 1; i < times.size(); ++i) {
        const int missing = qRound((times[i] - times[i - 1]) * framesPerSecond) - 1;
        lost += qMax(0, missing);
        if (missing > 0)
            qInfo("after %.3f s: %d frames missing", times[i - 1], missing);
    }
    tell("recordings that do not end by themselves", hasEnded ? 0 : 1, 0, "");
    tell("seconds that it lacks of 600", times.isEmpty() ? seconds : seconds - times.last(), 1, "s");
    tell("frames missing between its pictures", lost, 0, "");
    tell("errors as it is played",
         output("ffmpeg", {"-v", "error", "-i", movie, "-f", "null", "-"}).count('\n'), 0, "");
    return failures();
}
