// One process of the program through a long term: what it holds after each tenth.

#include "tests/endure/lesson.h"

#include <QRegularExpression>
#include <QX11Info>

#include <cstdio>

// Last: Xlib's macros break Qt's headers.
#include <X11/Xlib.h>
#include <X11/extensions/XRes.h>

namespace
{

constexpr int tenths = 10;
constexpr int photos = 1000;
constexpr int movies = 200;
constexpr int walks = 500;
constexpr int losses = 100;

struct Holdings {
    int threads;
    int descriptors;
    int xResources;
    double memory; // megabytes, the process's share
};

QString processFile(qint64 process, const char *name)
{
    return QString("/proc/%1/%2").arg(process).arg(name);
}

int entries(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

double memory(qint64 process)
{
    QFile file(processFile(process, "smaps_rollup"));
    static const QRegularExpression share("\nPss:\\s+(\\d+) kB");
    return share.match(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray())
               .captured(1)
               .toDouble() /
           1024;
}

// All that the X server keeps for the program's connections.
int xResources(qint64 process)
{
    Display *display = QX11Info::display();
    XResClientIdSpec all = {0, XRES_CLIENT_ID_PID_MASK};
    long idCount = 0;
    XResClientIdValue *ids = nullptr;
    XResQueryClientIds(display, 1, &all, &idCount, &ids);
    int resources = 0;
    for (long i = 0; i < idCount; ++i) {
        int typeCount = 0;
        XResType *types = nullptr;
        if (XResGetClientPid(&ids[i]) != process ||
            !XResQueryClientResources(display, ids[i].spec.client, &typeCount, &types))
            continue;
        for (int type = 0; type < typeCount; ++type)
            resources += int(types[type].count);
        XFree(types);
    }
    XResClientIdsDestroy(idCount, ids);
    return resources;
}

Holdings look(qint64 process)
{
    // Until the threads of all pools have ended for want of work.
    constexpr int settlingMilliseconds = 35000;
    QTest::qWait(settlingMilliseconds);
    return {entries(processFile(process, "task")), entries(processFile(process, "fd")), xResources(process),
            memory(process)};
}

void recordMovie(Lesson &lesson)
{
    constexpr int milliseconds = 1000;
    lesson.startMovie();
    QTest::qWait(milliseconds);
    lesson.stopMovie();
}

} // namespace

// The divisor takes that part of it all.
int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    const int divisor = argc > 1 ? QString(argv[1]).toInt() * tenths : tenths;
    Lesson lesson;
    lesson.launch();
    lesson.awaitLive();
    const qint64 process = lesson.program->process().processId();
    Holdings first = {};
    Holdings now = {};
    for (int tenth = 0; tenth < tenths; ++tenth) {
        for (int i = 0; i < walks / divisor; ++i)
            lesson.walk();
        for (int i = 0; i < losses / divisor; ++i)
            lesson.loseCamera();
        for (int i = 0; i < photos / divisor; ++i)
            lesson.takePhoto();
        // Last: the player, once it has shown one, keeps it.
        for (int i = 0; i < movies / divisor; ++i)
            recordMovie(lesson);
        now = look(process);
        if (tenth == 0)
            first = now;
        std::fprintf(stderr, "tenth %d: %d threads, %d descriptors, %d X resources, %.1f MB\n", tenth + 1,
                     now.threads, now.descriptors, now.xResources, now.memory);
    }
    tell("threads more after the last tenth", now.threads - first.threads, 0, "");
    tell("descriptors more", now.descriptors - first.descriptors, 0, "");
    tell("X resources more", now.xResources - first.xResources, 0, "");
    tell("memory more", now.memory - first.memory, 24, "MB");
    return failures();
}
