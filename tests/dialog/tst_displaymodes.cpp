#include "capture/livevideowidget.h"
#include "tests/dialog/mainwindow.h"

// Run once for each size of screen; what is expected on it was worked out by hand for a camera of 640x480.
struct ScreenSize {
    int rowButtonWidth;
    int rowTop;
    double firstOfFive; // left edge of the first button of a row
    double firstOfThree;
    QRect view;
    QRect half;
    QRect seriesView;
};

static ScreenSize screenSize()
{
    static const QMap<int, ScreenSize> sizes = {
        {1024, {170, 700, 2, 172, {45, 0, 933, 700}, {0, 124, 512, 384}, {0, 88, 512, 384}}},
        {1280, {213, 715, 1.5, 214.5, {163, 0, 953, 715}, {0, 75, 640, 480}, {0, 46, 640, 480}}},
        {1920, {240, 984, 240, 480, {304, 0, 1312, 984}, {0, 84, 960, 720}, {0, 33, 960, 720}}},
    };
    return sizes.value(QGuiApplication::primaryScreen()->availableGeometry().width());
}

class TestDisplayModes : public QObject
{
    Q_OBJECT

private slots:
    void everyScreenHasItsPlaces();
    void keyboardReachesTheRowFromLeftToRight();
};

static void checkPlaces(const MainWindow &main, int rowLength)
{
    const ScreenSize size = screenSize();
    double x = rowLength == 5 ? size.firstOfFive : size.firstOfThree;
    const QStringList corner = {"Settings", "Close", "Apply", "Retry"};
    for (QString name : main.buttons().split(' ')) {
        name.remove('+');
        if (corner.contains(name))
            continue;
        QCOMPARE(main.button(name)->pos(), QPoint(int(x), size.rowTop));
        QCOMPARE(main.button(name)->width(), size.rowButtonWidth);
        x += size.rowButtonWidth;
    }
    const QRect close = main.button("Close")->geometry();
    QCOMPARE(close.bottomRight(), main.window->rect().bottomRight());
    QCOMPARE(main.button("Settings")->geometry(), close.translated(0, -close.height()));
}

// Which buttons can be pressed is shown on the real program.
void TestDisplayModes::everyScreenHasItsPlaces()
{
    const ScreenSize size = screenSize();
    MainWindow main("AutoShoot=0\nContinuShootCount=2\nPhotoPreview=1\n");
    QCOMPARE(main.window->geometry(), main.window->screen()->availableGeometry());
    const int middle = main.window->width() / 2;
    const struct {
        const char *press;
        int rowLength; // buttons for which the row is centred
        QRect live;    // empty: hidden
        QRect picture;
    } steps[] = {
        {"", 5, size.view, {}},
        {"Photo", 5, size.half, size.half.translated(size.half.width(), 0)},
        {"Apply", 3, {}, size.view},
        {"Live", 5, size.view, {}},
        {"PhotoMulti", 5, size.seriesView, size.seriesView.translated(middle, 0)},
        {"PhotoMulti", 3, {}, {}},
    };
    const auto place = [](const QWidget *view) { return view->isVisible() ? view->geometry() : QRect(); };
    for (const auto &step : steps) {
        if (*step.press)
            main.press(step.press);
        checkPlaces(main, step.rowLength);
        QCOMPARE(place(main.view<LiveVideoWidget>()), step.live);
        QCOMPARE(place(main.view<PictureWidget>()), step.picture);
        if (main.button("Apply")->isVisible()) {
            const int secondRow = size.rowTop - main.button("Live")->height();
            QCOMPARE(main.button("Apply")->pos(), QPoint(middle - size.rowButtonWidth, secondRow));
            QCOMPARE(main.button("Retry")->pos(), QPoint(middle, secondRow));
        }
    }
}

void TestDisplayModes::keyboardReachesTheRowFromLeftToRight()
{
    MainWindow main;
    QStringList reached;
    for (int i = 0; i < 7; ++i) {
        reached << main.window->focusWidget()->objectName();
        QTest::keyClick(main.window->focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(reached.join(' '), QString("Photo PhotoMulti Movie List Settings Close Live"));
    QTest::keyClick(main.window->focusWidget(), Qt::Key_Return);
    QCOMPARE(main.window->currentMode(), DisplayMode::Photo);
    QCOMPARE(main.window->focusWidget(), main.button("Apply"));
    QTest::keyClick(main.window->focusWidget(), Qt::Key_Space);
    QCOMPARE(main.window->focusWidget(), main.button("Live"));
}

QTEST_MAIN(TestDisplayModes)
#include "tst_displaymodes.moc"
