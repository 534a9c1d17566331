#include <QFontMetrics>
#include <QtTest>

// Each catalogue against the texts that the program's sources ask for, and against the room for them.
class TestCatalogues : public QObject
{
    Q_OBJECT

    static QString read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
    // On a screen of 1024 a button is 170 by 68 pixels, Settings and Exit half as high; a caption has three
    // fifths of the width less the layout's gap, and the height less the plate's edges.
    static bool fits(const QString &source, const QString &translation)
    {
        constexpr int room = 96;
        const QString shown = (translation.isRightToLeft() ? "  " : "") + translation;
        const QFontMetrics metrics(QFont("Arial", 11, QFont::Black));
        const QSize size = metrics.boundingRect(0, 0, room, 1000, Qt::TextWordWrap, shown).size();
        return size.width() <= room &&
               size.height() <= (source == "Settings" || source == "Exit" ? 34 : 68) - 8;
    }

private slots:
    void eachIsWholeAndFits()
    {
        const QRegularExpression entry("<source>(.+?)</source>.*?<translation>(.*?)</translation>",
                                       QRegularExpression::DotMatchesEverythingOption);
        const QRegularExpression inner("\\S(.*\\S)?", QRegularExpression::DotMatchesEverythingOption);
        for (const QString locale : {"ar", "de", "es", "fr", "he", "ja", "no", "zh"}) {
            const QString path = PROJECT_FOLDER "/translations/vxdcplugin_" + locale + ".ts";
            const QString catalogue = read(path);
            bool isCaption = true; // the first texts of the main window, up to the first not on a button
            for (auto entries = entry.globalMatch(catalogue); entries.hasNext();) {
                const QRegularExpressionMatch match = entries.next();
                QString source = match.captured(1);
                QString translation = match.captured(2);
                isCaption = isCaption && source != "Still";
                QVERIFY2(!isCaption || fits(source, translation), qPrintable(translation));
                QCOMPARE(translation.count('\n'), source.count('\n'));
                QCOMPARE(translation.replace(inner, "x"), source.replace(inner, "x"));
            }
            // The names of two bitmaps.
            const QString tile =
                catalogue.section("<name>PictureWidget</name>", 1).section("</context>", 0, 0);
            QVERIFY(tile.contains("<translation>Zoom<") && tile.contains("<translation>Back<"));

            // Made anew from the sources, nothing comes to it and nothing goes.
            const QTemporaryDir scratch;
            const QString anew = scratch.filePath("anew.ts");
            QVERIFY(QFile::copy(path, anew));
            QStringList arguments{"-silent", "-no-obsolete", "-locations", "none"};
            for (const char *folder : {"app", "dialog", "capture", "widgets", "util", "settings"})
                arguments << PROJECT_FOLDER "/" + QString(folder);
            QProcess lupdate;
            lupdate.start(LUPDATE, arguments << "-ts" << anew);
            QVERIFY(lupdate.waitForFinished() && lupdate.exitCode() == 0);
            QVERIFY(!read(anew).contains("unfinished"));
            QCOMPARE(read(anew).count("<source>"), catalogue.count("<source>"));
        }
    }
};

QTEST_MAIN(TestCatalogues)
#include "tst_catalogues.moc"
