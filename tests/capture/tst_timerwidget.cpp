#include "capture/timerwidget.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimer>

// Ticks are given by hand: the tests tell what each second shows and signals, not how long a second is.
class TestTimerWidget : public QObject
{
    Q_OBJECT

private slots:
    void countdownsAndShots();
    void recordingTimeAndLimit();
    void playbackAsksForTheTimeUntilStopped();

private:
    static void tick(TimerWidget &timer) { QMetaObject::invokeMethod(&timer, "showtime"); }
};

void TestTimerWidget::countdownsAndShots()
{
    const struct {
        int count;
        bool isModeSetAfterRun; // as a series does, which starts a second late by that
        QString seconds;        // what each second shows; "*" is a shot, "-" nothing
    } table[] = {{3, false, "3 2 1 * 3 2 1 * 3"}, {3, true, "- 3 2 1 * 3 2 1 *"}, {0, false, "* * *"}};
    for (const auto &row : table) {
        TimerWidget timer;
        QSignalSpy shots(&timer, &TimerWidget::shot);
        if (!row.isModeSetAfterRun)
            timer.SetMode(TimerMode::Countdown);
        timer.setcount(row.count);
        timer.run();
        if (row.isModeSetAfterRun)
            timer.SetMode(TimerMode::Countdown);
        int second = 0;
        for (const QString &expected : row.seconds.split(' ')) {
            if (second++ > 0)
                tick(timer);
            const bool counts = expected != "*" && expected != "-";
            QCOMPARE(timer.text(), counts ? expected + " second to capture" : QString());
            QCOMPARE(shots.count(), expected == "*" ? 1 : 0);
            QVERIFY(!counts || timer.isVisible());
            shots.clear();
        }
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

QTEST_MAIN(TestTimerWidget)
#include "tst_timerwidget.moc"
