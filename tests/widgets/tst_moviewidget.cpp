#include "widgets/moviewidget.h"

#include <QFile>
#include <QProcess>
#include <QShowEvent>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

// Real playback of a movie made for the test.
class TestMovieWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void waitsWithItsFirstPictureThenPlaysToTheEnd();
    void whatIsNoMovieDoesNoHarm();

private:
    QTemporaryDir m_dir;
    QString m_movie;
};

void TestMovieWidget::initTestCase()
{
    m_movie = m_dir.filePath("movie 1.mov");
    const QString pipeline =
        "-q videotestsrc num-buffers=30 ! video/x-raw,width=320,height=240,framerate=30/1 ! "
        "x264enc tune=zerolatency ! qtmux name=mux ! filesink location=%1 "
        "audiotestsrc num-buffers=43 ! avenc_aac ! mux.";
    QStringList arguments = pipeline.split(' ');
    arguments.replaceInStrings("%1", m_movie);
    QCOMPARE(QProcess::execute("gst-launch-1.0", arguments), 0);
}

void TestMovieWidget::waitsWithItsFirstPictureThenPlaysToTheEnd()
{
    MovieWidget movie;
    movie.resize(320, 240);
    QVERIFY(!movie.isCreated() && movie.isComplete()); // nothing lasts no time
    QVERIFY(movie.Create(m_movie) && movie.isCreated());
    QSignalSpy finished(&movie, &MovieWidget::finished);
    movie.show();
    QTRY_VERIFY(movie.isPaused());
    QTRY_VERIFY(movie.totalTime() > 900 && movie.totalTime() < 1200);
    QVERIFY(!movie.isComplete());
    QCOMPARE(finished.count(), 0);

    movie.Play();
    QTRY_VERIFY(movie.isPlaying());
    // The window comes back from its icon: the movie goes on.
    QShowEvent restored;
    QSpontaneKeyEvent::setSpontaneous(&restored);
    QCoreApplication::instance()->notify(&movie, &restored);
    QVERIFY(finished.wait(10000));
    movie.Stop();
    QTRY_VERIFY(!movie.isPlaying());

    // Again from the beginning.
    movie.Reset();
    QTRY_VERIFY(movie.isPlaying());
    movie.disp();
    QTRY_VERIFY(movie.isPaused());
    QVERIFY(!movie.isComplete());
}

void TestMovieWidget::whatIsNoMovieDoesNoHarm()
{
    QFile empty(m_dir.filePath("movie0.mov"));
    QVERIFY(empty.open(QIODevice::WriteOnly));
    for (const QString &path : {empty.fileName(), m_dir.filePath("gone.mov"), m_dir.path()}) {
        MovieWidget movie;
        QVERIFY(movie.Create(path));
        movie.show();
        QTest::qWait(300); // past the moment at which it is held
        movie.Play();
        QTRY_VERIFY(!movie.isPlaying());
        movie.Stop();
        QVERIFY(movie.isComplete());
    }
}

QTEST_MAIN(TestMovieWidget)
#include "tst_moviewidget.moc"
