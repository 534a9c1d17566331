#include "capture/livevideowidget.h"
#include "tests/dialog/mainwindow.h"
#include "tests/dialog/screensaver.h"
#include "widgets/moviewidget.h"

class TestDarkScreen : public QObject
{
    Q_OBJECT

private slots:
    void comesOnlyWhereNothingMoves()
    {
        const ScreenSaver saver;
        QVERIFY(saver.comes());
        MainWindow main("AutoShoot=0\n");
        QVERIFY(!saver.comes()); // the live picture
        main.press("List");
        QVERIFY(saver.comes());
        main.press("Live");
        main.press("Movie");
        QVERIFY(!saver.comes());
        main.press("MovieStop");
        QTRY_VERIFY(main.view<MovieWidget>()->isVisible());
        QVERIFY(!saver.comes());
        main.press("Live");
        const Answers answers({"OK"});
        main.devices.pull("cam");
        QTRY_COMPARE(answers.told().size(), 1);
        QVERIFY(saver.comes());
        main.devices.plug("cam");
        QTRY_COMPARE(main.view<LiveVideoWidget>()->isVisible(), true);
        QVERIFY(!saver.comes());
        main.window->saveAndLeave();
        QVERIFY(saver.comes());
    }
};

QTEST_MAIN(TestDarkScreen)
#include "tst_darkscreen.moc"
