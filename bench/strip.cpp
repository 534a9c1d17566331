// What the teacher waits for in the main window: from the press of List to the strip and to its last
// thumbnail, from the press of Photo to the photo on the screen. The peer does the same work with Qt's means,
// one after the other.

#include "bench/comparison.h"
#include "tests/dialog/mainwindow.h"
#include "widgets/picturelistview.h"
#include "widgets/pictureloader.h"
#include "widgets/picturewidget.h"

namespace
{

constexpr int rounds = 5;
constexpr int photos = 50;
constexpr double mostPhotoMilliseconds = 50;
constexpr double mostStripMilliseconds = 100;
constexpr int mostWaitMilliseconds = 20000;

// Whether a widget was painted since the last look.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget *widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        m_isPainted |= event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }
    // Until the next painting is on the screen.
    void waitForPaint()
    {
        m_isPainted = false;
        waitFor([this] { return m_isPainted; });
    }
    static void waitFor(const std::function<bool()> &condition)
    {
        const QDeadlineTimer limit(mostWaitMilliseconds);
        while (!condition()) {
            if (limit.hasExpired())
                qFatal("the window does not follow");
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
        }
    }

private:
    bool m_isPainted = false;
};

// How long after it was made the widget has shown what it is to show.
class ShownWatch : public QObject
{
public:
    ShownWatch(QWidget *widget, std::function<bool()> isThere) : m_isThere(std::move(isThere))
    {
        widget->installEventFilter(this);
        m_clock.start();
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && m_isThere()) {
            // The window brings it to the screen before anything else happens.
            QTimer::singleShot(0, this, [this] {
                if (!hasShown())
                    m_milliseconds = double(m_clock.nsecsElapsed()) / 1e6;
            });
        }
        return QObject::eventFilter(watched, event);
    }
    bool hasShown() const { return m_milliseconds > 0; }
    double milliseconds() const { return m_milliseconds; }

private:
    const std::function<bool()> m_isThere;
    QElapsedTimer m_clock;
    double m_milliseconds = 0;
};

QString workingFile(const QString &name)
{
    return WebcamUtil::getTemporaryPath() + "/" + name;
}

// The camera's photo, so many times.
void multiplyPhoto()
{
    const QString photo = workingFile(MainWindow::captures("photo*").first());
    for (int i = 1; i < photos; ++i)
        QFile::copy(photo, workingFile(QString("photo2024010112000%1.png").arg(i, 4, 10, QChar('0'))));
}

void readAllInTurn(const QSize &size)
{
    for (const QString &name : MainWindow::captures("photo*")) {
        const QImage photo(workingFile(name));
        if (QPixmap::fromImage(photo.scaled(size, Qt::KeepAspectRatio)).isNull())
            qFatal("%s is no photo", qPrintable(name));
    }
}

void comparePhoto(const MainWindow &main)
{
    auto *view = main.view<PictureWidget>();
    std::vector<double> reviewed;
    for (int round = 0; round < rounds; ++round) {
        const QString before = view->fileName();
        const ShownWatch watch(view, [view, before] {
            return !view->fileName().isEmpty() && view->fileName() != before; // it is emptied first
        });
        main.press("Photo"); // returns when the photo is saved
        PaintWatch::waitFor([&] { return watch.hasShown(); });
        const QString last = MainWindow::captures("photo*").last();
        reviewed.push_back(watch.milliseconds());
        QFile::remove(workingFile(last));
        main.press("Live");
        QTest::qWait(100);
    }
    printValue("press of Photo to the photo on the screen", reviewed, "ms", mostPhotoMilliseconds);
}

void compareStrip(const MainWindow &main)
{
    auto *list = main.view<PictureListView>();
    auto *loader = list->findChild<PictureLoader *>();
    int loaded = 0;
    QObject::connect(loader, &PictureLoader::loaded, list, [&loaded] { ++loaded; });
    PaintWatch watch(list->viewport());

    std::vector<double> standing;
    Comparison filled({QString("press of List to the last of %1 thumbnails").arg(photos), "ms", 0.5});
    for (int round = 0; round < rounds; ++round) {
        loaded = 0;
        const double ours = secondsOf([&] {
            standing.push_back(1000 * secondsOf([&] {
                                   main.press("List");
                                   watch.waitForPaint();
                               }));
            PaintWatch::waitFor([&loaded] { return loaded == photos; });
            // Those that are in sight are painted.
            QCoreApplication::processEvents();
        });
        const double peers = secondsOf([list] { readAllInTurn(list->iconSize()); });
        filled.add(ours * 1000, peers * 1000);
        main.press("Live");
        QTest::qWait(100);
    }
    printValue("press of List to the strip", standing, "ms", mostStripMilliseconds);
    filled.print();
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const MainWindow main("PhotoPreview=false\n", "YUY2 1920x1080 30");
    comparePhoto(main);
    main.press("Photo");
    main.press("Live");
    multiplyPhoto();
    compareStrip(main);
}
