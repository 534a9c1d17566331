// A lesson on a disk on which the n-th change fails, for every n; and on others that are worse.

#include "bench/endure/lesson.h"

#include <QSettings>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <sys/stat.h>

namespace
{

struct Fault {
    int first = 0;
    int last = 0;
    int error = 0;
};

constexpr int hang = 0;
// A photo, a series, a movie and its preview, and a photo that is loaded.
constexpr int allCaptures = 7;

class Trials
{
public:
    Trials()
    {
        QImage photo(64, 48, QImage::Format_RGB32);
        photo.fill(Qt::white);
        photo.save(m_earlier.filePath("photo20240101120000000.png"));
        QSettings(QDir::home().filePath(".hollin_orvane.ini"), QSettings::IniFormat)
            .setValue("SaveDirectory", m_saveDisk.path());
    }
    // Returns how many changes there were.
    int run(const Fault &fault);
    void report();

private:
    void attempt(const std::function<void()> &step);
    void goLive();
    static void pressWhatLeadsBack(const QString &row);
    void load();
    void judge(const Fault &fault);
    void miss(int *count, const char *what, const Fault &fault)
    {
        ++*count;
        std::fprintf(stderr, "%s: change %d to %d, %s\n", what, fault.first, fault.last,
                     strerror(fault.error));
    }

    Lesson m_lesson{"YUY2 640x480 10"};
    const QTemporaryDir m_earlier;
    const QTemporaryDir m_saveDisk{"/dev/shm/orvane-endure.XXXXXX"};
    QFile m_count{QDir::temp().filePath("count")};
    QImage m_complete; // what the dialog shows that has loaded all
    QStringList m_finished;
    bool m_wasTold = false;
    bool m_hasEnded = false;
    int m_trials = 0, m_deaths = 0, m_lost = 0, m_damaged = 0, m_silent = 0;
};

int Trials::run(const Fault &fault)
{
    Program::workingFolder().removeRecursively();
    mkdir(QFile::encodeName(Program::workingFolder().path()), S_IRWXU);
    QDir(m_saveDisk.filePath("VeltrixCamera")).removeRecursively();
    m_finished.clear();
    m_wasTold = m_hasEnded = false;
    static_cast<void>(m_count.open(QIODevice::WriteOnly | QIODevice::Truncate));
    m_count.close();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_PRELOAD", FAULTY_DISK);
    environment.insert("FAULTY_FOLDERS", Program::workingFolder().path() + ':' + m_saveDisk.path());
    environment.insert("FAULTY_FIRST", QString::number(fault.first));
    environment.insert("FAULTY_LAST", QString::number(fault.last));
    environment.insert("FAULTY_ERROR", QString::number(fault.error));
    environment.insert("FAULTY_COUNT", m_count.fileName());
    m_lesson.launch(environment);
    attempt([this] { m_lesson.awaitLive(); });
    attempt([this] { m_lesson.takePhoto(); });
    attempt([this] { m_lesson.takeSeries(true); });
    attempt([this] { m_lesson.recordMovie(); });
    attempt([this] { load(); });
    attempt([this] { m_lesson.leaveSaving(); });
    judge(fault);
    return int(m_count.size());
}

// What stands after a step that nothing was said of counts as finished.
void Trials::attempt(const std::function<void()> &step)
{
    if (m_hasEnded)
        return;
    try {
        step();
        if (m_lesson.program->process().state() == QProcess::Running)
            m_finished = Program::captures();
    } catch (const MessageIsShown &) {
        m_wasTold = true;
        goLive();
    } catch (const ProgramHasEnded &) {
        m_hasEnded = true;
    }
}

// From wherever a message has left the program, which may also be on its way out. What was pressed has time
// to show: a second press would meet the live row, and take a photo.
void Trials::goLive()
{
    constexpr int answerMilliseconds = 10000;
    for (;;) {
        QString pressed;
        QElapsedTimer sincePress;
        try {
            m_lesson.await("what can be pressed", [&] {
                const QString row = Program::rowLooks(Program::screen());
                if (row != pressed || sincePress.hasExpired(answerMilliseconds)) {
                    pressWhatLeadsBack(row);
                    pressed = row;
                    sincePress.start();
                }
                return row == "EEEEE";
            });
            return;
        } catch (const MessageIsShown &) {
        } catch (const ProgramHasEnded &) {
            return;
        }
    }
}

// Nothing while all is grey.
void Trials::pressWhatLeadsBack(const QString &row)
{
    if (Program::look(Program::screen(), Program::retryButton()) == 'E')
        Program::click(Program::retryButton());
    else if (row == "dddEd")
        Program::click(Program::liveRow(3));
    else if (row.startsWith('E') && row != "EEEEE")
        Program::click(row.size() == 4 ? Program::row(0) : Program::liveRow(0));
}

// Its dialog tells in words how it went. The first trial's is the one in which nothing fails.
void Trials::load()
{
    const QImage told = m_lesson.load(m_earlier.path());
    if (m_trials == 0)
        m_complete = told;
    m_wasTold = m_wasTold || told != m_complete;
}

void Trials::judge(const Fault &fault)
{
    ++m_trials;
    QProcess &process = m_lesson.program->process();
    constexpr int farewellMilliseconds = 10000; // it may be on its way out
    if (!QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, farewellMilliseconds))
        static_cast<void>(m_lesson.program->quit());
    if (process.exitStatus() == QProcess::CrashExit || process.exitCode() != 0)
        miss(&m_deaths, "dead", fault);
    const auto all = capturesIn({Program::workingFolder().path(), m_saveDisk.path()});
    for (const QString &name : qAsConst(m_finished)) {
        if (!all.contains(name))
            miss(&m_lost, qPrintable("lost " + name), fault);
    }
    for (const QString &path : all) {
        if (path.endsWith(".png") && QImage(path).isNull())
            miss(&m_damaged, qPrintable("damaged " + path), fault);
    }
    const bool isAllSaved = m_finished.size() >= allCaptures && Program::captures().isEmpty();
    if (!isAllSaved && !m_wasTold)
        miss(&m_silent, "not told", fault);
}

void Trials::report()
{
    std::fprintf(stderr, "%d trials\n", m_trials);
    tell("programs that died", m_deaths, 0, "");
    tell("finished captures lost", m_lost, 0, "");
    tell("damaged pictures", m_damaged, 0, "");
    tell("failures that were not told", m_silent, 0, "");
}

} // namespace

// disk [EVERY [FIRST]]: every so manieth change and worse disk, all when left out, from the first on.
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const int every = argc > 1 ? QString(argv[1]).toInt() : 1;
    const int first = argc > 2 ? QString(argv[2]).toInt() : 1;
    Trials trials;
    const int changes = trials.run({});
    std::fprintf(stderr, "%d changes\n", changes);
    for (int change = first; change <= changes; change += every) {
        constexpr int errors[] = {ENOSPC, EIO, EDQUOT};
        trials.run({change, change, errors[change % 3]});
    }
    constexpr int worseTrials = 8;
    for (int trial = first - 1; trial < worseTrials; trial += every) {
        const int change = 1 + changes * trial / worseTrials;
        trials.run({change, change, hang});
        trials.run({change, INT_MAX, EROFS}); // from then on it is read-only
        trials.run({change, INT_MAX, EIO});   // or has vanished
    }
    trials.report();
    return failures();
}
