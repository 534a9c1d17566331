#include "tests/app/walk.h"
#include "tests/support/testdevices.h"

#include <QSettings>

// Through all screens of the real program by mouse: which buttons are there, which are enabled, and where.
class TestWalk : public QObject
{
    Q_OBJECT

private slots:
    void goesThroughAllScreens();
};

void TestWalk::goesThroughAllScreens()
{
    TestDevices devices;
    devices.camera("cam").formats("YUY2 640x480 30").content("page");
    devices.microphone("mic");
    devices.write();
    QSettings(QDir::home().filePath(".hollin_orvane.ini"), QSettings::IniFormat).setValue("AutoShoot", 0);
    Program program;
    QVERIFY(program.start());

    QCOMPARE(walkThroughAllScreens(), QString());
}

QTEST_MAIN(TestWalk)
#include "tst_walk.moc"
