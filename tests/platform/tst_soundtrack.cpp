#include "tests/support/simulatedsound.h"

#include <QTest>

// A track over minutes, whose moments are told to it.
class TestSoundTrack : public QObject
{
    Q_OBJECT

private slots:
    void staysBesideOurClock();
};

void TestSoundTrack::staysBesideOurClock()
{
    constexpr double length = 120;
    const SimulatedMicrophone table[] = {{500e-6, 0, 0.03, length},      {-500e-6, 0, 0.03, length},
                                         {500e-6, 0.5, 0.005, length},   {0.01, 0, 0.01, length},
                                         {0, 0, 0.01, length, 40, 40.5}, {-500e-6, 0, 0.01, length, 40, 43}};
    for (const SimulatedMicrophone &row : table) {
        const SimulatedSound sound = simulate(row);
        const QByteArray told = QString("%1 %2 %3: late %4 to %5 and %6, jump %7, silence %8")
                                    .arg(row.clock)
                                    .arg(row.bursts)
                                    .arg(row.lostUntil)
                                    .arg(sound.least)
                                    .arg(sound.most)
                                    .arg(sound.atEnd)
                                    .arg(sound.longestJump)
                                    .arg(sound.silence)
                                    .toUtf8();
        const double lost = row.lostUntil - row.lostFrom;
        QVERIFY2(std::abs(sound.atEnd) < 0.02, told);
        QVERIFY2(lost > 0 || (sound.least > -0.02 && sound.most < 0.04), told);
        QVERIFY2(sound.longestJump < 0.001, told);
        QVERIFY2(std::abs(sound.silence - lost) < (lost > 0 ? 0.05 : 0.001), told);
        QVERIFY2(std::abs(sound.length - length) < 0.001, told);
    }
}

QTEST_APPLESS_MAIN(TestSoundTrack)
#include "tst_soundtrack.moc"
