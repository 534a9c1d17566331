#include "tests/dialog/mainwindow.h"

#include "capture/livevideowidget.h"
#include "widgets/moviewidget.h"
#include "widgets/picturelistview.h"
#include "widgets/picturewidget.h"

class TestDisplayModes : public QObject
{
    Q_OBJECT
private slots:
    void print();
};

void TestDisplayModes::print()
{
    MainWindow main;
    qDebug() << main.window->geometry() << main.buttons();
    for (auto b : {"Live", "Close", "Settings", "Photo", "List", "Apply", "Retry"})
        qDebug() << b << main.button(b)->geometry();
    qDebug() << main.view<LiveVideoWidget>()->geometry();
    QTest::qWait(1500);
    main.window->screen()->grabWindow(0).save("/tmp/dlg/live.png");
    main.press("Photo");
    qDebug() << main.buttons() << main.captures();
    QTest::qWait(300);
    main.window->screen()->grabWindow(0).save("/tmp/dlg/preview.png");
    main.press("Apply");
    qDebug() << main.buttons();
    QTest::qWait(300);
    main.window->screen()->grabWindow(0).save("/tmp/dlg/photo.png");
    main.press("Live");
    main.press("Movie");
    qDebug() << main.buttons();
    QTest::qWait(3000);
    main.window->screen()->grabWindow(0).save("/tmp/dlg/rec.png");
    main.press("MovieStop");
    qDebug() << main.buttons() << main.captures();
    QTest::qWait(1000);
    main.window->screen()->grabWindow(0).save("/tmp/dlg/movie.png");
    main.press("MoviePlay");
    QTest::qWait(1000);
    main.window->screen()->grabWindow(0).save("/tmp/dlg/movieplay.png");
    QTest::qWait(4000);
    main.window->screen()->grabWindow(0).save("/tmp/dlg/movieend.png");
    qDebug() << main.buttons();
    main.press("List");
    qDebug() << main.buttons();
    QTest::qWait(500);
    main.window->screen()->grabWindow(0).save("/tmp/dlg/movielist.png");
    main.press("SwitchPhoto");
    main.press("Live");
    main.press("PhotoMulti");
    qDebug() << main.buttons();
    QTest::qWait(2500);
    main.window->screen()->grabWindow(0).save("/tmp/dlg/series.png");
    for (int i = 0; i < 4; ++i)
        main.press("PhotoMulti");
    qDebug() << main.buttons() << main.captures();
    QTest::qWait(500);
    main.window->screen()->grabWindow(0).save("/tmp/dlg/grid.png");
    main.press("List");
    QTest::qWait(1000);
    main.window->screen()->grabWindow(0).save("/tmp/dlg/list.png");
    qDebug() << main.buttons();
}

QTEST_MAIN(TestDisplayModes)
#include "tst_displaymodes.moc"
