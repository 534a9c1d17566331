// A process that takes photos or records a movie until it is killed, for tests of what it leaves behind.
// captureprocess movie PATH | photos FOLDER; prints "running" once it is at work.

#include "platform/livevideodata.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFrame>
#include <QTimer>

#include <cstdio>

static void say(const char *word)
{
    std::puts(word);
    std::fflush(stdout);
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    QFrame window;
    LiveVideoData capture;
    capture.SetTarget(&window);
    capture.Create();
    capture.Start();
    if (arguments.value(1) == "movie") {
        capture.Record(arguments.value(2));
        say("running");
        return QApplication::exec();
    }
    QTimer timer;
    int count = 0;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        capture.SaveBitmap(QDir(arguments.value(2)).filePath(QString("photo%1.png").arg(count++)));
        if (count == 1)
            say("running");
    });
    timer.start(0);
    return QApplication::exec();
}
