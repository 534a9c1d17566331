// The program is killed at random moments of a lesson; what was taken, and what is left lying about, is
// looked at after each.

#include "bench/endure/lesson.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QRegularExpression>
#include <QSettings>

#include <csignal>
#include <cstdio>
#include <random>
#include <sys/syscall.h>
#include <thread>

namespace
{

constexpr int kills = 500;
constexpr int startMilliseconds = 1500;

using Clock = std::chrono::steady_clock;
using Captures = QMultiMap<QString, QString>; // by the name: where it stands

QByteArray checksum(const QString &path)
{
    QFile file(path);
    QCryptographicHash sum(QCryptographicHash::Md5);
    return file.open(QIODevice::ReadOnly) && sum.addData(&file) ? sum.result() : QByteArray();
}

double movieSeconds(const QString &path)
{
    QProcess player;
    player.start("ffprobe", {"-v", "error", "-show_entries", "format=duration", "-of", "csv=p=0", path});
    return player.waitForFinished() ? player.readAllStandardOutput().trimmed().toDouble() : 0;
}

// Kills the program after some time, from outside of whatever is being done with it.
class Killer
{
public:
    // moment: when it was done, to be read once the killer is gone.
    Killer(qint64 process, int milliseconds, Clock::time_point *moment)
        : m_process(int(syscall(SYS_pidfd_open, process, 0))), m_thread([this, milliseconds, moment] {
              std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
              *moment = Clock::now();
              syscall(SYS_pidfd_send_signal, m_process, SIGKILL, nullptr, 0);
          })
    {
    }
    ~Killer()
    {
        m_thread.join();
        close(m_process);
    }
    Killer(const Killer &) = delete;
    Killer &operator=(const Killer &) = delete;

private:
    int m_process;
    std::thread m_thread;
};

class Ordeal
{
public:
    explicit Ordeal(unsigned seed) : m_random(seed) {}

    void killOnce();
    void lookAt();
    void end();

private:
    int random(int most) { return std::uniform_int_distribution<int>(0, most)(m_random); }
    QString folderToLoad();
    void recordMovie();
    Captures captures() const;
    bool isInPlace(const QString &capture) const;
    QSet<QString> strays() const;
    static void miss(int *count, const char *what, const QString &which)
    {
        ++*count;
        std::fprintf(stderr, "%s: %s\n", what, qUtf8Printable(which));
    }

    std::mt19937 m_random;
    Lesson m_lesson;
    const QTemporaryDir m_sources;
    const QTemporaryDir m_otherDisk{"/dev/shm/orvane-endure.XXXXXX"};
    QMap<QString, QByteArray> m_known;  // of what was whole, also where it is only to be loaded
    QSet<QString> m_captured;           // what has stood among the program's captures
    bool m_hasRecorded = false;         // a movie, since the last look
    Clock::time_point m_recordingSince; // seen, and so begun before
    Clock::duration m_movieLength = {};
    Clock::time_point m_killed;
    int m_loaded = 0;
    QSet<QString> m_firstStrays;
    int m_dead = 0, m_damaged = 0, m_astray = 0, m_lost = 0, m_twice = 0, m_shortened = 0;
};

QString Ordeal::folderToLoad()
{
    constexpr int bytes = 30 << 20;
    QString folder = m_sources.filePath(QString::number(++m_loaded));
    const QString name = QString("photo2024%1.png").arg(m_loaded, 13, 10, QChar('0'));
    QDir().mkpath(folder);
    QFile file(folder + '/' + name);
    if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray(bytes, char(m_loaded))) != bytes)
        qFatal("there is no room for the ordeal");
    file.close();
    m_known[name] = checksum(file.fileName()); // whole from the first moment on
    return folder;
}

void Ordeal::recordMovie()
{
    m_lesson.startMovie();
    m_hasRecorded = true;
    m_recordingSince = Clock::now();
    m_movieLength = std::chrono::milliseconds(1500 + random(1500));
    m_lesson.await("the movie's length", [this] { return Clock::now() - m_recordingSince > m_movieLength; });
    m_lesson.stopMovie();
}

// A start or, after it, a step of the lesson, with the end somewhere in it.
void Ordeal::killOnce()
{
    const struct {
        int milliseconds; // that it takes, or some more
        std::function<void()> run;
    } steps[] = {
        {1500, [this] { m_lesson.takePhoto(); }},
        {2000, [this] { m_lesson.takeSeries(); }},
        {4500, [this] { recordMovie(); }},
        {1000, [this] { m_lesson.changeSettings(); }},
        {2500, [this] { m_lesson.load(folderToLoad()); }},
        {1500, [this] { m_lesson.leaveSaving(); }},
    };
    const size_t choice = size_t(random(int(std::size(steps))));
    // Those that a save did not get to go where it put the others.
    if (Program::captures().isEmpty())
        QSettings(QDir::home().filePath(".hollin_orvane.ini"), QSettings::IniFormat)
            .setValue("SaveDirectory", random(1) == 0 ? QDir::homePath() : m_otherDisk.path());
    bool isToDie = false;
    try {
        m_lesson.launch();
        const auto dieWithin = [&](int milliseconds) {
            isToDie = true;
            return std::make_unique<Killer>(m_lesson.program->process().processId(), random(milliseconds),
                                            &m_killed);
        };
        std::unique_ptr<Killer> killer;
        if (choice == std::size(steps))
            killer = dieWithin(startMilliseconds);
        m_lesson.awaitLive();
        if (choice < std::size(steps)) {
            killer = dieWithin(steps[choice].milliseconds);
            steps[choice].run();
        }
        m_lesson.await("the end", [] { return false; });
    } catch (const ProgramHasEnded &) {
        const QProcess &process = m_lesson.program->process();
        const bool isKill = process.exitStatus() == QProcess::CrashExit && process.exitCode() == SIGKILL;
        if (!isToDie)
            miss(&m_dead, "a start", "does not come to a picture");
        else if (!isKill && process.exitCode() != 0)
            miss(&m_dead, "by itself with", QString::number(process.exitCode()));
    } catch (const MessageIsShown &) {
        miss(&m_dead, "a message", "comes in the way");
    }
}

Captures Ordeal::captures() const
{
    return capturesIn({Program::workingFolder().path(), QDir::homePath(), m_otherDisk.path()});
}

// In the working folder, or in a folder of its own day and lesson where it is saved.
bool Ordeal::isInPlace(const QString &capture) const
{
    static const QRegularExpression saved("^/VeltrixCamera/[^/]+/[^/]+$");
    const auto isSavedBelow = [&](const QString &folder) {
        return capture.startsWith(folder) && saved.match(capture.mid(folder.size())).hasMatch();
    };
    return QFileInfo(capture).path() == Program::workingFolder().path() || isSavedBelow(QDir::homePath()) ||
           isSavedBelow(m_otherDisk.path());
}

// All other files of the program's: settings, locks, and what a death may have left.
QSet<QString> Ordeal::strays() const
{
    const QList<QString> places = captures().values();
    const QSet<QString> known(places.begin(), places.end());
    QSet<QString> all;
    for (const QString &folder : {Program::workingFolder().path(), QDir::homePath(), m_otherDisk.path(),
                                  qEnvironmentVariable("XDG_RUNTIME_DIR")}) {
        QDirIterator files(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
        while (files.hasNext())
            all += files.next();
    }
    all -= QDir::home().filePath(".config/QtProject.conf"); // what Qt's chooser of folders remembers
    return all - known;
}

void Ordeal::lookAt()
{
    const double recorded =
        std::chrono::duration<double>(qMin(m_killed - m_recordingSince, m_movieLength)).count();
    double found = 0;
    const Captures all = captures();
    for (auto capture = all.begin(); capture != all.end(); ++capture) {
        m_captured += capture.key();
        if (!isInPlace(capture.value()))
            miss(&m_astray, "astray", capture.value());
        if (m_known.contains(capture.key())) {
            if (checksum(capture.value()) != m_known[capture.key()])
                miss(&m_damaged, "damaged", capture.value());
            continue;
        }
        m_known[capture.key()] = checksum(capture.value());
        if (capture.key().endsWith(".mov"))
            found = movieSeconds(capture.value());
        else if (QImage(capture.value()).isNull())
            miss(&m_damaged, "not a picture", capture.value());
    }
    if (m_hasRecorded && found < recorded - 1)
        miss(&m_shortened, "too short", QString("%1 of %2 s").arg(found).arg(recorded));
    m_hasRecorded = false;
    for (auto known = m_known.begin(); known != m_known.end(); ++known) {
        if (!all.contains(known.key()) && m_captured.contains(known.key()))
            miss(&m_lost, "lost", known.key());
    }
    if (m_firstStrays.isEmpty())
        m_firstStrays = strays();
}

// A save that is not killed clears everything up.
void Ordeal::end()
{
    m_lesson.launch();
    m_lesson.awaitLive();
    m_lesson.leaveSaving();
    const Captures all = captures();
    for (const QString &name : all.uniqueKeys()) {
        if (all.count(name) > 1)
            miss(&m_twice, "twice", name);
    }
    if (!Program::captures().isEmpty())
        miss(&m_twice, "not saved", Program::captures().join(' '));
    int newStrays = 0;
    for (const QString &path : strays() - m_firstStrays)
        miss(&newStrays, "new", path);
    tell("starts and steps that failed", m_dead, 0, "");
    tell("captures that are not whole", m_damaged, 0, "");
    tell("captures that are not where they belong", m_astray, 0, "");
    tell("captures lost", m_lost, 0, "");
    tell("captures standing twice after the last save", m_twice, 0, "");
    tell("movies short of more than their last second", m_shortened, 0, "");
    tell("other files more than after the first", newStrays, 0, "");
}

} // namespace

// kill [NUMBER [SEED]]
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const int number = argc > 1 ? QString(argv[1]).toInt() : kills;
    const unsigned seed = argc > 2 ? QString(argv[2]).toUInt() : std::random_device()();
    std::fprintf(stderr, "seed: %u\n", seed);
    Ordeal ordeal(seed);
    for (int count = 0; count < number; ++count) {
        ordeal.killOnce();
        ordeal.lookAt();
    }
    ordeal.end();
    return failures();
}
