#include "capture/livevideowidget.h"
#include "capture/timerwidget.h"
#include "tests/dialog/mainwindow.h"
#include "widgets/moviewidget.h"
#include "widgets/picturewidget.h"

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
    void everyScreenHasItsButtons();
    void everyScreenHasItsPictures();
    void keyboardReachesTheRowFromLeftToRight();
};

struct Step {
    const char *press;
    const char *buttons; // shown, from left to right; a "+" for those that can be pressed
    int rowLength;       // slots for which the row is centred
};

static void checkRow(const MainWindow &main, int rowLength)
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

void TestDisplayModes::everyScreenHasItsButtons()
{
    const char *const live = "Live+ Photo+ PhotoMulti+ Movie+ List+ Settings+ Close+";
    const std::initializer_list<Step> walk = {
        {"", live, 5},
        {"Photo", "Live Photo Apply+ PhotoMulti Retry+ Movie List Settings Close", 5},
        {"Apply", "Live+ PutPhoto+ List+ Close+", 3},
        {"Live", live, 5},
        {"Movie", "Live Photo PhotoMulti MovieStop+ List Settings Close", 5},
        {"MovieStop", "Live+ MoviePlay+ List+ Close+", 3},
        {"MoviePlay", "Live+ MoviePause+ List+ Close+", 3},
        {"MoviePause", "Live+ MoviePlay+ List+ Close+", 3},
        {"List", "Live+ Show Load+ SwitchPhoto+ Close+", 3},
        {"SwitchPhoto", "Live+ Show Load+ SwitchMovie+ Close+", 3},
        {"SwitchMovie", "Live+ Show Load+ SwitchPhoto+ Close+", 3},
        {"Live", live, 5},
        {"PhotoMulti", "Live+ Photo PhotoMulti+ Movie List Close", 5},
        {"PhotoMulti", "Live+ PutPhoto+ List+ Close+", 3},
        {"List", "Live+ Show Load+ SwitchMovie+ Close+", 3},
    };
    MainWindow main("AutoShoot=0\nContinuShootCount=2\n");
    QCOMPARE(main.window->geometry(), main.window->screen()->availableGeometry());
    for (const Step &step : walk) {
        if (*step.press)
            main.press(step.press);
        QCOMPARE(main.buttons(), QString(step.buttons));
        checkRow(main, step.rowLength);
        if (qstrcmp(step.press, "Movie") == 0)
            QTRY_COMPARE(main.view<TimerWidget>()->text(), QString("00:01")); // long enough to be played
    }

    // A mode that is none shows the live screen; the list after it is not one of movies.
    main.window->TransitionMode(static_cast<DisplayMode>(7));
    QCOMPARE(main.buttons(), QString(live));
    QCOMPARE(int(main.window->currentMode()), 7);
    main.press("List");
    QCOMPARE(main.buttons(), QString("Live+ Show Load+ SwitchMovie+ Close+"));
}

void TestDisplayModes::everyScreenHasItsPictures()
{
    const ScreenSize size = screenSize();
    MainWindow main("AutoShoot=0\nContinuShootCount=2\nPhotoPreview=1\n");
    const auto *live = main.view<LiveVideoWidget>();
    const auto *picture = main.view<PictureWidget>();
    QCOMPARE(live->geometry(), size.view);
    QVERIFY(live->isVisible());
    main.press("Photo");
    QCOMPARE(live->geometry(), size.half);
    QCOMPARE(picture->geometry(), size.half.translated(size.half.width(), 0));
    QVERIFY(live->isVisible() && picture->isVisible());
    const int middle = main.window->width() / 2;
    const int secondRow = size.rowTop - main.button("Live")->height();
    QCOMPARE(main.button("Apply")->pos(), QPoint(middle - size.rowButtonWidth, secondRow));
    QCOMPARE(main.button("Retry")->pos(), QPoint(middle, secondRow));
    main.press("Apply");
    QCOMPARE(picture->geometry(), size.view);
    QVERIFY(!live->isVisible() && picture->isVisible());
    main.press("Live");
    QCOMPARE(live->geometry(), size.view);
    QVERIFY(live->isVisible() && !picture->isVisible());
    main.press("PhotoMulti");
    QCOMPARE(live->geometry(), size.seriesView);
    QCOMPARE(picture->geometry(), size.seriesView.translated(middle, 0));
}

void TestDisplayModes::keyboardReachesTheRowFromLeftToRight()
{
    MainWindow main;
    QCOMPARE(main.window->focusWidget(), main.button("Photo"));
    QStringList reached;
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(main.window->focusWidget(), Qt::Key_Tab);
        reached << main.window->focusWidget()->objectName();
    }
    QCOMPARE(reached.join(' '), QString("PhotoMulti Movie List Settings Close Live"));
    QTest::keyClick(main.window->focusWidget(), Qt::Key_Tab);
    QTest::keyClick(main.window->focusWidget(), Qt::Key_Return);
    QCOMPARE(main.window->currentMode(), DisplayMode::Photo);
    QCOMPARE(main.window->focusWidget(), main.button("Apply"));
    QTest::keyClick(main.window->focusWidget(), Qt::Key_Space);
    QCOMPARE(main.window->focusWidget(), main.button("Live"));
}

QTEST_MAIN(TestDisplayModes)
#include "tst_displaymodes.moc"
