// One process of the program through a long term: what it holds after each tenth.

#include "bench/endure/lesson.h"

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
    double memory; // megabytes of its own, without what it maps of files, which others map too
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
    static const QRegularExpression own("\nPss_(?:Anon|Shmem):\\s+(\\d+) kB");
    auto shares = own.globalMatch(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
    double kilobytes = 0;
    while (shares.hasNext())
        kilobytes += shares.next().captured(1).toDouble();
    return kilobytes / 1024;
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

// What the program holds at rest, with the player keeping a movie that it has shown.
Holdings look(Lesson &lesson)
{
    constexpr int playerMilliseconds = 3000;    // a slow start of the player and its second try
    constexpr int settlingMilliseconds = 35000; // until the threads of all pools have ended for want of work
    lesson.recordMovie(playerMilliseconds);
    QTest::qWait(settlingMilliseconds);
    const qint64 process = lesson.program->process().processId();
    return {entries(processFile(process, "task")), entries(processFile(process, "fd")), xResources(process),
            memory(process)};
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
    Holdings first = {};
    Holdings now = {};
    for (int tenth = 0; tenth < tenths; ++tenth) {
        for (int i = 0; i < walks / divisor; ++i)
            lesson.walk();
        for (int i = 0; i < losses / divisor; ++i)
            lesson.loseCamera();
        for (int i = 0; i < photos / divisor; ++i)
            lesson.takePhoto();
        for (int i = 0; i < movies / divisor; ++i)
            lesson.recordMovie();
        now = look(lesson);
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
