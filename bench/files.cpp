// Saving what was captured and loading it again, against cp: fifty photos, and a movie of 500 MB, on one file
// system and from one to the other. Saving moves the captures; cp leaves them, and sync after it makes them
// as safe as a saved capture is.

#include "bench/comparison.h"
#include "dialog/foldercopy.h"
#include "util/webcamutil.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <initializer_list>
#include <random>

namespace
{

constexpr int rounds = 5;
constexpr int photos = 50;
constexpr int photoBytes = 2800 * 1000; // of 1920x1080
constexpr int movieMegabytes = 500;
constexpr int megabyte = 1000 * 1000;

struct Captures {
    const char *name;
    std::function<void(const QString &folder)> make;
};

QByteArray noise(int bytes)
{
    std::minstd_rand random(1);
    QByteArray data(bytes, Qt::Uninitialized);
    for (char &byte : data)
        byte = char(random() >> 8);
    return data;
}

void writeFile(const QString &path, const QByteArray &block, int times)
{
    QFile file(path);
    bool isWritten = file.open(QIODevice::WriteOnly);
    for (int i = 0; i < times; ++i)
        isWritten = isWritten && file.write(block) == block.size();
    if (!isWritten || !file.flush())
        qFatal("%s cannot be written", qPrintable(path));
}

void makePhotos(const QString &folder)
{
    const QByteArray photo = noise(photoBytes);
    for (int i = 0; i < photos; ++i)
        writeFile(folder + QString("/photo202401011200000%1.png").arg(i, 2, 10, QChar('0')), photo, 1);
}

void makeMovie(const QString &folder)
{
    writeFile(folder + "/movie20240101120000.mov", noise(megabyte), movieMegabytes);
    writeFile(folder + "/movie20240101120000tmp.png", noise(photoBytes), 1);
}

void emptyFolder(const QString &folder)
{
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
}

// What was written before must not be waited for in the next measurement.
void settle()
{
    QProcess::execute("sync", {});
}

// Seconds that a command takes to copy files into the folder, which is empty before and after.
double timeOfCopy(const QString &command, const QString &folder)
{
    emptyFolder(folder);
    settle();
    int status = 0;
    const double seconds = secondsOf([&] { status = QProcess::execute("sh", {"-c", command}); });
    if (status != 0)
        qFatal("%s fails", qPrintable(command));
    emptyFolder(folder);
    settle();
    return seconds;
}

double timeOfLoading(const QString &from, const QString &to)
{
    emptyFolder(to);
    settle();
    const bool isOfMovies = !QDir(from).entryList({"movie*"}).isEmpty();
    const double seconds = secondsOf([&] {
        FolderCopy copy(isOfMovies ? FolderCopy::Kind::Movies : FolderCopy::Kind::Photos, from, to);
        QEventLoop loop;
        QObject::connect(&copy, &FolderCopy::finished, &loop, [&loop](bool isComplete) {
            if (!isComplete)
                qFatal("the captures were not loaded");
            loop.quit();
        });
        loop.exec();
    });
    emptyFolder(to);
    settle();
    return seconds;
}

// The working folder below a temporary folder of the file system told.
QString workingFolderIn(const QString &place)
{
    qputenv("TMPDIR", QFile::encodeName(place));
    WebcamUtil::setTemporaryPath();
    QString folder = WebcamUtil::getTemporaryPath();
    if (!folder.startsWith(place))
        qFatal("there is no working folder in %s", qPrintable(place));
    return folder;
}

void compareSaving(const Captures &captures, const QString &from, const QString &to, const QString &where)
{
    const QString working = workingFolderIn(from);
    Comparison lasting({QString("saving %1, %2, against cp and sync").arg(captures.name, where), "ms", 1.1});
    Comparison plain({QString("saving %1, %2, against cp").arg(captures.name, where), "ms"});
    for (int round = 0; round < rounds; ++round) {
        const QString peers = to + "/peers";
        const QString ours = to + "/ours";
        emptyFolder(working);
        emptyFolder(ours);
        captures.make(working);

        const QString copy = "cp -p '" + working + "'/* '" + peers + "'";
        const double cp = timeOfCopy(copy, peers);
        const double cpAndSync = timeOfCopy(copy + " && sync '" + peers + "'/*", peers);
        bool isSaved = false;
        const double saving = secondsOf([&] { isSaved = WebcamUtil::saveData(ours); });
        if (!isSaved || !QDir(working).isEmpty())
            qFatal("the captures were not saved");
        plain.add(saving * 1000, cp * 1000);
        lasting.add(saving * 1000, cpAndSync * 1000);
    }
    lasting.print();
    plain.print();
}

void compareLoading(const Captures &captures, const QString &from, const QString &to, const QString &where)
{
    const QString working = workingFolderIn(to);
    const QString source = from + "/saved";
    const QString peers = to + "/peers";
    emptyFolder(source);
    captures.make(source);
    const QString copy = "cp '" + source + "'/* '" + peers + "'";
    Comparison loading({QString("loading %1, %2, against cp").arg(captures.name, where), "ms", 1.1});
    // Reads the source and touches the target for the first time, as every later round finds them.
    timeOfCopy(copy, peers);
    for (int round = 0; round < rounds; ++round) {
        const double ours = timeOfLoading(source, working);
        loading.add(ours * 1000, timeOfCopy(copy, peers) * 1000);
    }
    emptyFolder(source);
    emptyFolder(working);
    loading.print();
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir disk(QDir::homePath() + "/disk");
    const QTemporaryDir memory("/dev/shm/orvane-bench");
    if (!disk.isValid() || !memory.isValid())
        qFatal("there is no place for the files");
    const std::initializer_list<Captures> kinds = {{"50 photos", makePhotos}, {"a 500 MB movie", makeMovie}};
    for (const Captures &captures : kinds) {
        compareSaving(captures, disk.path(), disk.path(), "one file system");
        compareSaving(captures, memory.path(), disk.path(), "memory to disk");
        compareLoading(captures, disk.path(), disk.path(), "one file system");
        compareLoading(captures, disk.path(), memory.path(), "disk to memory");
    }
}
