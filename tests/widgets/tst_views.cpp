#include "util/desktop/look.h"
#include "widgets/moviewidget.h"
#include "widgets/pictureloader.h"
#include "widgets/picturewidget.h"
#include "widgets/stretchbitmapbutton.h"

#include <QLabel>
#include <QProcess>
#include <QRegularExpression>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include <phonon/MediaObject>

// What the main window is made of: its buttons, its pictures and its movies.
class TestViews : public QObject
{
    Q_OBJECT

    // The colours of a picture's middle line.
    static QSet<QRgb> colours(QWidget &widget)
    {
        const QImage image = widget.grab().toImage();
        QSet<QRgb> found;
        for (int x = 0; x < image.width(); ++x)
            found << image.pixel(x, image.height() / 2);
        return found;
    }

    // A second of white.
    QString whiteMovie() const
    {
        QString path = m_dir.filePath("movie 1.mov");
        const QString pipeline =
            "-q videotestsrc num-buffers=30 pattern=white ! video/x-raw,width=320,height=240 "
            "! x264enc tune=zerolatency ! qtmux ! filesink location=%1";
        if (!QFile::exists(path))
            QProcess::execute("gst-launch-1.0", pipeline.split(' ').replaceInStrings("%1", path));
        return path;
    }
    // The colours of a widget's part, as the user sees it: with what other windows lay over it.
    static QSet<QRgb> onScreen(const QWidget &widget, const QRect &part)
    {
        const QRect place(widget.mapToGlobal(part.topLeft()), part.size());
        const QImage image = QGuiApplication::primaryScreen()->grabWindow(0).toImage().copy(place);
        QSet<QRgb> found;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                found << image.pixel(x, y);
        }
        return found;
    }
    void load(PictureWidget &widget, const QString &name) const
    {
        QSignalSpy read(widget.findChild<PictureLoader *>(), &PictureLoader::loaded);
        widget.Loadbmp(name, m_dir.path());
        QVERIFY(read.wait(30000)); // reading gives way to all else
    }

    const QSet<QRgb> black{QColor(Qt::black).rgb()};
    const QTemporaryDir m_dir;

private slots:
    void onlyCaptionsReadFromRightToLeft()
    {
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        CStretchBitmapButton button("Live");
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        button.setCaptionText("Movie /\n    Photo");
        QCOMPARE(button.accessibleName(), QString("Movie / Photo"));
        QCOMPARE(button.findChild<QLabel *>()->text(), QString("  Movie /\n    Photo"));
        QCOMPARE(button.findChild<QLabel *>()->layoutDirection(), Qt::RightToLeft);
        QCOMPARE(button.layoutDirection(), Qt::LeftToRight); // the bitmap's drawing stays left of the caption
    }

    void captionStandsStraightAndIsGreyedOut()
    {
        applyLook();
        CStretchBitmapButton button("SwitchPhoto");
        button.setCaptionText("Photo /\n    Photo"); // both begin with the same letter
        button.show();
        auto *caption = button.findChild<QLabel *>();
        // The letters of a line: the leftmost column in which there are any, and how light the lightest is.
        const auto lettersOfLine = [caption](int line) {
            QImage image(caption->size(), QImage::Format_RGB32);
            image.fill(Qt::black);
            caption->render(&image, {}, {}, QWidget::DrawChildren);
            const int middle = image.height() / 2;
            std::pair<int, int> found(image.width(), 0);
            for (int y = line * middle; y < (line + 1) * middle; ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    const int light = qGray(image.pixel(x, y));
                    found = {light > 60 ? qMin(found.first, x) : found.first, qMax(found.second, light)};
                }
            }
            return found;
        };
        QCOMPARE(lettersOfLine(0), lettersOfLine(1));
        QVERIFY(lettersOfLine(0).second > 200);
        button.setEnabled(false);
        const int greyed = lettersOfLine(0).second;
        QVERIFY2(greyed > 100 && greyed < 200, qPrintable(QString::number(greyed)));
    }

    // A small tile made large shows the small picture's few colours: the stored picture was scaled.
    void pictureKeepsWhatItPainted()
    {
        QImage stripes(256, 256, QImage::Format_RGB888);
        for (int x = 0; x < 256; ++x) {
            for (int y = 0; y < 256; ++y)
                stripes.setPixelColor(x, y, QColor(x, 0, 0));
        }
        QVERIFY(stripes.save(m_dir.filePath("photo1.png")) && QDir(m_dir.path()).mkdir("folder.png"));
        PictureWidget widget;
        widget.labelVisible(false);
        load(widget, "photo1.png");
        const QPair<int, int> sidesAndColours[] = {{256, 256}, {16, 16}, {256, 16}};
        for (const auto &row : sidesAndColours) {
            widget.resize(row.first, row.first);
            QCOMPARE(colours(widget).size(), row.second);
        }
        for (const char *name : {"folder.png", "gone.png"}) {
            load(widget, name);
            QCOMPARE(colours(widget), black);
        }
    }

    // Whatever is asked for in the meantime, the last word counts; until it comes the old picture stays.
    void newestPictureCounts()
    {
        const QColor hues[] = {Qt::red, Qt::green, Qt::blue};
        QImage image(4000, 3000, QImage::Format_RGB32);
        for (int i = 0; i < 3; ++i) {
            image.fill(hues[i]);
            QVERIFY(image.save(m_dir.filePath(QString("photo%1.png").arg(i))));
        }
        PictureWidget widget;
        widget.labelVisible(false);
        load(widget, "photo0.png");
        QSignalSpy read(widget.findChild<PictureLoader *>(), &PictureLoader::loaded);
        widget.Loadbmp("photo1.png", m_dir.path());
        widget.Loadbmp("photo2.png", m_dir.path());
        QCOMPARE(widget.fileName(), QString("photo2.png"));
        QCOMPARE(colours(widget), QSet<QRgb>{hues[0].rgb()});
        QVERIFY(read.wait(30000)); // reading gives way to all else
        QCOMPARE(colours(widget), QSet<QRgb>{hues[2].rgb()});
        widget.Loadbmp("photo1.png", m_dir.path());
        widget.showPicture("photo3.png", image);
        widget.Loadbmp("photo1.png", m_dir.path());
        widget.Release();
        {
            PictureWidget shortLived;
            shortLived.Loadbmp("photo1.png", m_dir.path());
        }
        PictureWidget last; // is read after all of these
        load(last, "photo1.png");
        QCOMPARE(read.count(), 1);
        QCOMPARE(colours(widget), black);
    }

    void moviePlaysToItsEndAndAgain()
    {
        MovieWidget movie;
        QVERIFY(movie.Create(whiteMovie()));
        QSignalSpy finished(&movie, &MovieWidget::finished);
        movie.show();
        QTRY_VERIFY(movie.isPaused()); // with its first picture
        QTRY_VERIFY(movie.totalTime() > 900 && movie.totalTime() < 1200);
        QVERIFY(!movie.isComplete() && finished.isEmpty());
        QTRY_VERIFY(onScreen(movie, movie.rect()).contains(QColor(Qt::white).rgb()));
        const QRect caption = movie.findChild<QLabel *>()->geometry();
        QTRY_VERIFY(onScreen(movie, caption).contains(QColor(Qt::green).rgb()));

        movie.Play();
        QTRY_VERIFY(movie.isPlaying());
        // The window comes back from its icon: the movie goes on.
        QShowEvent restored;
        QSpontaneKeyEvent::setSpontaneous(&restored);
        QCoreApplication::instance()->notify(&movie, &restored);
        QVERIFY(finished.wait(10000));
        QVERIFY(!movie.isPlayWanted());
        movie.Reset();
        QTRY_VERIFY(movie.isPlaying());
        movie.disp();
        QTRY_VERIFY(movie.isPaused());
        QVERIFY(!movie.isComplete());
        movie.Play();
        QTRY_VERIFY(movie.currentTime() > 200);
        movie.Stop();
        QTRY_VERIFY2(!movie.isPlaying() && movie.currentTime() == 0,
                     qPrintable(QString("at %1").arg(movie.currentTime())));
        movie.Play();
        QVERIFY(finished.wait(10000));

        // The player stops in the middle, as when its sound server dies: it can be told to play again.
        const QSignalSpy brokeDown(&movie, &MovieWidget::brokeDown);
        movie.Play();
        QTRY_VERIFY(movie.isPlaying() && movie.currentTime() > 100);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("does not play"));
        movie.mediaObject()->stop();
        QVERIFY(finished.wait(5000) && !movie.isPlayWanted());
        QCOMPARE(brokeDown.size(), 1);
        movie.Play();
        QTRY_VERIFY(movie.isPlaying());
    }

    // Before the player knows the movie, while it shows the first picture, and later: the last word counts.
    void lastWordToThePlayerCounts()
    {
        MovieWidget movie;
        movie.Create(whiteMovie());
        for (const int pressAfter : {0, 50, 120, 300}) {
            const QSignalSpy finished(&movie, &MovieWidget::finished);
            movie.show();
            QTest::qWait(pressAfter);
            movie.Play();
            QVERIFY(movie.isPlayWanted());
            QTRY_VERIFY2(movie.currentTime() > 500 || !finished.isEmpty(),
                         qPrintable(QString::number(pressAfter)));
            movie.Stop();
            movie.hide();
            movie.Create(whiteMovie());
        }
        movie.show();
        movie.Play();
        movie.pause();
        QVERIFY(!movie.isPlayWanted());
        QTRY_VERIFY(movie.isPaused() && movie.totalTime() > 0);
        QVERIFY(movie.currentTime() < 500);
    }

    void emptyOrMissingMoviesDoNoHarm()
    {
        QFile empty(m_dir.filePath("movie0.mov"));
        QVERIFY(empty.open(QIODevice::WriteOnly));
        for (const QString &path : {empty.fileName(), m_dir.filePath("gone.mov")}) {
            MovieWidget movie;
            movie.Create(path);
            movie.show();
            movie.Play();
            QTRY_VERIFY(!movie.isPlaying());
            QVERIFY(movie.isComplete());
        }
    }
};

QTEST_MAIN(TestViews)
#include "tst_views.moc"
