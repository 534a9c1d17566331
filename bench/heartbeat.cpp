// How long the window stands still: the longest gap between two ticks of a fast timer, through everything
// that a lesson does.

#include "bench/comparison.h"
#include "capture/timerwidget.h"
#include "tests/dialog/mainwindow.h"
#include "widgets/picturelistview.h"

#include <QFileDialog>
#include <QLineEdit>

#include <algorithm>

namespace
{

constexpr int rounds = 3;
constexpr int tickMilliseconds = 5;
constexpr int waitMilliseconds = 20000;

class Heart
{
public:
    Heart()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            m_longest = std::max(m_longest, m_sinceTick.nsecsElapsed()), m_sinceTick.start();
        });
        m_timer.start(tickMilliseconds);
    }

    // Milliseconds of the longest gap from the work's beginning to some time after it, when all that it set
    // going has come.
    double longestGap(const std::function<void()> &work)
    {
        constexpr int settling = 400;
        m_longest = 0;
        m_sinceTick.start();
        work();
        QTest::qWait(settling);
        return double(m_longest) / 1e6;
    }

private:
    QTimer m_timer;
    QElapsedTimer m_sinceTick;
    qint64 m_longest = 0;
};

void waitFor(const std::function<bool()> &condition)
{
    if (!QTest::qWaitFor(condition, waitMilliseconds))
        qFatal("the window does not follow");
}

void choose(const MainWindow &main, int count)
{
    auto *list = main.view<PictureListView>();
    waitFor([list] { return list->isVisible(); });
    for (int row = 0; row < count; ++row)
        list->item(row)->setSelected(true);
}

void load(const MainWindow &main, const QString &folder)
{
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        auto *chooser = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!chooser)
            return;
        auto *name = chooser->findChild<QLineEdit *>("fileNameEdit");
        name->setText(folder);
        name->setFocus();
        QTest::keyClick(name, Qt::Key_Return);
    });
    look.start(50); // until it is accepted: it may still be reading the folder
    Answers answers({"OK"});
    main.press("Load");
    waitFor([&answers] { return !answers.told().isEmpty(); });
}

// What a teacher does, one after the other, with what is to be measured of it.
struct Lesson {
    explicit Lesson(const QString &formats) : main("AutoShoot=0\nContinuShootCount=3\n", formats)
    {
        waitFor([this] { return main.button("Photo")->isVisible(); });
        QTest::qWait(1000); // what is loaded in the background after the start
    }

    void step(const char *name, const std::function<void()> &work)
    {
        gaps[name].push_back(heart.longestGap(work));
    }
    void press(const char *name, const char *button)
    {
        step(name, [&] { main.press(button); });
    }

    void play()
    {
        press("Photo", "Photo");
        press("Accept", "Apply");
        press("Live", "Live");
        step("Continuous Capture, three photos", [this] {
            for (int shot = 0; shot < 3; ++shot)
                main.press("PhotoMulti");
        });
        press("Live", "Live");
        press("Movie", "Movie");
        step("recording",
             [this] { waitFor([this] { return main.view<TimerWidget>()->text() >= "00:02"; }); });
        press("Stop", "MovieStop");
        press("Play", "MoviePlay");
        press("List, while a movie plays", "List");
        press("Movie / Photo", "SwitchPhoto");
        multiply();
        press("Live", "Live");
        press("List", "List");
        step("choosing nine", [this] { choose(main, PictureListView::mostChosen); });
        press("View of nine", "Show");
        step("Zoom", [this] { tileButton(); });
        step("Back", [this] { tileButton(); });
        press("List", "List");
    }
    void leave()
    {
        step("Exit with Yes", [this] {
            Answers answers({"Yes"});
            main.press("Close");
        });
    }

    // The visible button of the tiles' first that is shown.
    void tileButton() const
    {
        for (auto *button : main.tiles().first()->findChildren<CStretchBitmapButton *>()) {
            if (button->isVisible()) {
                button->click();
                return;
            }
        }
    }
    // The camera's photo, until there are fifty.
    static void multiply()
    {
        const QString photo = working(MainWindow::captures("photo*").first());
        for (int i = 0; i < 46; ++i)
            QFile::copy(photo, working(QString("photo2024010112000%1.png").arg(i, 4, 10, QChar('0'))));
    }

    MainWindow main;
    Heart heart;
    QMap<QString, std::vector<double>> gaps;
};

void measure(const QString &formats, const QString &what, double most)
{
    QMap<QString, std::vector<double>> gaps;
    for (int round = 0; round < rounds; ++round) {
        Lesson lesson(formats);
        lesson.play();
        const QString earlier = QDir::homePath() + "/earlier";
        QDir(earlier).removeRecursively();
        QDir().mkpath(earlier);
        for (const QString &name : MainWindow::captures("photo*"))
            QFile::copy(working(name), earlier + "/" + name);
        QDir(WebcamUtil::getTemporaryPath()).removeRecursively();
        WebcamUtil::setTemporaryPath();
        lesson.step("Load", [&] { load(lesson.main, earlier); });
        lesson.leave();
        for (auto step = lesson.gaps.begin(); step != lesson.gaps.end(); ++step)
            gaps[step.key()].insert(gaps[step.key()].end(), step.value().begin(), step.value().end());
    }
    for (auto step = gaps.begin(); step != gaps.end(); ++step)
        printValue(QString("%1, %2").arg(step.key(), what),
                   {*std::max_element(step.value().begin(), step.value().end())}, "ms", most);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    measure("YUY2 1920x1080 30", "1920x1080", 50);
    measure("JPEG 3264x2448 15", "3264x2448", 100);
}
