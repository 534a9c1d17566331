#include <QDir>
#include <QFontMetrics>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

namespace
{

struct Text {
    QString context;
    QString source;
};

// The texts that a catalogue's source file names, as the program would ask for them.
QVector<Text> textsOf(const QString &file)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader xml(&input);
    QVector<Text> texts;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("source"))
            texts.append({context, xml.readElementText()});
    }
    return texts;
}

// The first texts of the main window, up to the first that is not on a button.
QStringList captionsIn(const QVector<Text> &texts)
{
    QStringList captions;
    for (const Text &text : texts) {
        if (text.source == QLatin1String("Still"))
            break;
        if (text.context == QLatin1String("CPictorelDlg") && text.source != QLatin1String("Orvane"))
            captions.append(text.source);
    }
    return captions;
}

QString endsOf(const QString &text)
{
    static const QRegularExpression inner(QStringLiteral("\\S(.*\\S)?"),
                                          QRegularExpression::DotMatchesEverythingOption);
    return QString(text).replace(inner, QStringLiteral("x"));
}

} // namespace

class TestCatalogues : public QObject
{
    Q_OBJECT

    QTranslator catalogue;
    QVector<Text> texts;

    QString translated(const QString &context, const QString &source) const
    {
        return catalogue.translate(context.toUtf8().constData(), source.toUtf8().constData());
    }

    // On a screen of 1024 a button is 170 by 68 pixels, Settings and Exit half as high; a caption has three
    // fifths of the width less the layout's gap, and the height less the plate's edges.
    void captionsFit()
    {
        constexpr int Room = 96;
        const QFontMetrics metrics(QFont(QStringLiteral("Arial"), 11, QFont::Black));
        const QStringList captions = captionsIn(texts);
        QCOMPARE(captions.size(), 18);
        for (const QString &caption : captions) {
            const bool half = caption == QLatin1String("Settings") || caption == QLatin1String("Exit");
            const QString translation = translated("CPictorelDlg", caption);
            const QString shown = (translation.isRightToLeft() ? "  " : "") + translation;
            const QSize size = metrics.boundingRect(0, 0, Room, 1000, Qt::TextWordWrap, shown).size();
            QVERIFY2(size.width() <= Room, qPrintable(translation));
            QVERIFY2(size.height() <= (half ? 34 : 68) - 8, qPrintable(translation));
        }
    }

private slots:
    void eachCatalogue_data()
    {
        QTest::addColumn<QString>("locale");
        for (const char *locale : {"ar", "de", "es", "fr", "he", "ja", "no", "zh"})
            QTest::newRow(locale) << QString::fromLatin1(locale);
    }

    void eachCatalogue()
    {
        QFETCH(QString, locale);
        QVERIFY(catalogue.load(CATALOGUE_FOLDER "/vxdcplugin_" + locale));
        texts = textsOf(SOURCE_FOLDER "/vxdcplugin_" + locale + ".ts");
        QCOMPARE(texts.size(), textsOf(QStringLiteral(SOURCE_FOLDER "/vxdcplugin_de.ts")).size());
        QVERIFY(texts.size() > 60);
        for (const Text &text : qAsConst(texts)) {
            const QString translation = translated(text.context, text.source);
            QVERIFY2(!translation.isEmpty(), qPrintable(text.source));
            QCOMPARE(endsOf(translation), endsOf(text.source));
            QCOMPARE(translation.count(QLatin1Char('\n')), text.source.count(QLatin1Char('\n')));
        }
        // The names of two bitmaps.
        QCOMPARE(translated("PictureWidget", "Zoom"), QStringLiteral("Zoom"));
        QCOMPARE(translated("PictureWidget", "Back"), QStringLiteral("Back"));
        captionsFit();
    }
};

QTEST_MAIN(TestCatalogues)
#include "tst_catalogues.moc"
