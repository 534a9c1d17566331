#include "capture/timerwidget.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

// Ticks are given by hand: the tests tell what each second shows and signals, not how long a second is.
class TestTimerWidget : public QObject
{
    Q_OBJECT

private slots:
    void countdownsAndShots_data();
    void countdownsAndShots();
    void recordingTimeAndLimit();
    void playbackAsksForTheTimeUntilStopped();
    void placesTheCaptionForItsMode();

private:
    static void tick(TimerWidget &timer) { QMetaObject::invokeMethod(&timer, "showtime"); }
};

void TestTimerWidget::countdownsAndShots_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("modeAfterRun");
    QTest::addColumn<QString>("seconds"); // what each second shows; "*" is a shot, "-" nothing
    QTest::newRow("counts down over and over") << 3 << false << "3 2 1 * 3 2 1 * 3";
    QTest::newRow("a series starts a second late") << 3 << true << "- 3 2 1 * 3 2 1 *";
    QTest::newRow("no delay: a shot a second") << 0 << false << "* * *";
    QTest::newRow("two digits") << 10 << false << "10 9 8";
}

void TestTimerWidget::countdownsAndShots()
{
    QFETCH(int, count);
    QFETCH(bool, modeAfterRun);
    QFETCH(QString, seconds);
    TimerWidget timer;
    QSignalSpy shots(&timer, &TimerWidget::shot);
    if (!modeAfterRun)
        timer.SetMode(TimerMode::Countdown);
    timer.setcount(count);
    timer.run();
    if (modeAfterRun)
        timer.SetMode(TimerMode::Countdown);

    int second = 0;
    for (const QString &expected : seconds.split(' ')) {
        if (second++ > 0)
            tick(timer);
        const bool counts = expected != "*" && expected != "-";
        QCOMPARE(timer.text(), counts ? expected + " second to capture" : QString());
        QCOMPARE(shots.count(), expected == "*" ? 1 : 0);
        QVERIFY(!counts || timer.isVisible());
        shots.clear();
    }
}

void TestTimerWidget::recordingTimeAndLimit()
{
    TimerWidget timer;
    QSignalSpy over(&timer, &TimerWidget::movieTimeOver);
    timer.SetMode(TimerMode::Recording);
    timer.run();
    QCOMPARE(timer.text(), QString("00:00"));
    for (int second = 1; second < TimerWidget::recordingLimit; ++second)
        tick(timer);
    QCOMPARE(timer.text(), QString("09:59"));
    QCOMPARE(over.count(), 0);
    tick(timer);
    QCOMPARE(timer.text(), QString("10:00"));
    tick(timer);
    QCOMPARE(over.count(), 2);

    timer.Pause();
    timer.run();
    QCOMPARE(timer.text(), QString("00:00"));
}

void TestTimerWidget::playbackAsksForTheTimeUntilStopped()
{
    TimerWidget timer;
    auto *ticker = timer.findChild<QTimer *>();
    QCOMPARE(ticker->interval(), 1000);
    ticker->setInterval(10);
    QSignalSpy asks(&timer, &TimerWidget::set);
    timer.SetMode(TimerMode::Playback);
    for (void (TimerWidget::*stop)() : {&TimerWidget::Pause, &TimerWidget::Stop, &TimerWidget::reset}) {
        timer.run();
        QVERIFY(asks.wait(1000));
        (timer.*stop)();
        QVERIFY(!ticker->isActive());
    }
}

void TestTimerWidget::placesTheCaptionForItsMode()
{
    TimerWidget timer;
    timer.move(5, 40);
    const int screen = QGuiApplication::primaryScreen()->availableGeometry().width();
    for (TimerMode mode : {TimerMode::Recording, TimerMode::Countdown, TimerMode::Playback}) {
        timer.SetMode(mode);
        QCOMPARE(QPoint(timer.geometry().right(), timer.y()), QPoint(screen - 1, 40));
        QVERIFY(timer.isHidden() && timer.text().isEmpty());
    }
}

QTEST_MAIN(TestTimerWidget)
#include "tst_timerwidget.moc"
