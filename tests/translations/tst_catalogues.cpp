#include <QFontMetrics>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

// Each catalogue against the texts that the program's sources ask for.
class TestCatalogues : public QObject
{
    Q_OBJECT

    // Context, text and comment, in the order of a catalogue's source file.
    using Texts = QVector<QStringList>;

    static Texts textsOf(const QString &file);
    QString translated(const QStringList &text) const
    {
        return m_catalogue.translate(text[0].toUtf8(), text[1].toUtf8(), text.value(2).toUtf8());
    }

    QTranslator m_catalogue;
    QTemporaryDir m_scratch;

private slots:
    void eachCatalogue_data();
    void eachCatalogue();
};

TestCatalogues::Texts TestCatalogues::textsOf(const QString &file)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader xml(&input);
    Texts texts;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "name")
            context = xml.readElementText();
        else if (xml.name() == "source")
            texts.append({context, xml.readElementText()});
        else if (xml.name() == "comment")
            texts.last().append(xml.readElementText());
    }
    return texts;
}

void TestCatalogues::eachCatalogue_data()
{
    QTest::addColumn<QString>("locale");
    for (const char *locale : {"ar", "de", "es", "fr", "he", "ja", "no", "zh"})
        QTest::newRow(locale) << locale;
    QStringList update{"-silent", "-locations", "none"};
    for (const char *folder : {"app", "dialog", "capture", "widgets", "util", "settings"})
        update << PROJECT_FOLDER "/" + QString(folder);
    QProcess lupdate;
    lupdate.start(LUPDATE, update << "-ts" << m_scratch.filePath("asked.ts"));
    QVERIFY(lupdate.waitForFinished() && lupdate.exitCode() == 0);
}

void TestCatalogues::eachCatalogue()
{
    QFETCH(QString, locale);
    QVERIFY(m_catalogue.load(CATALOGUE_FOLDER "/vxdcplugin_" + locale));
    Texts texts = textsOf(PROJECT_FOLDER "/translations/vxdcplugin_" + locale + ".ts");
    Texts asked = textsOf(m_scratch.filePath("asked.ts"));
    // On a screen of 1024 a button is 170 by 68 pixels, Settings and Exit half as high; a caption has three
    // fifths of the width less the layout's gap, and the height less the plate's edges.
    constexpr int room = 96;
    const QFontMetrics metrics(QFont("Arial", 11, QFont::Black));
    const QRegularExpression inner("\\S(.*\\S)?", QRegularExpression::DotMatchesEverythingOption);
    bool isCaption = true; // the first texts of the main window, up to the first that is not on a button
    for (const QStringList &text : qAsConst(texts)) {
        const QString source = text[1];
        const QString translation = translated(text);
        QVERIFY2(!translation.isEmpty(), qPrintable(source));
        QCOMPARE(QString(translation).replace(inner, "x"), QString(source).replace(inner, "x"));
        QCOMPARE(translation.count('\n'), source.count('\n'));
        isCaption = isCaption && source != "Still";
        if (!isCaption)
            continue;
        const QString shown = (translation.isRightToLeft() ? "  " : "") + translation;
        const QSize size = metrics.boundingRect(0, 0, room, 1000, Qt::TextWordWrap, shown).size();
        const int height = source == "Settings" || source == "Exit" ? 34 : 68;
        QVERIFY2(size.width() <= room && size.height() <= height - 8, qPrintable(translation));
    }
    // The names of two bitmaps.
    QCOMPARE(translated({"PictureWidget", "Zoom"}), QString("Zoom"));
    QCOMPARE(translated({"PictureWidget", "Back"}), QString("Back"));

    std::sort(texts.begin(), texts.end());
    std::sort(asked.begin(), asked.end());
    QCOMPARE(texts, asked);
}

QTEST_MAIN(TestCatalogues)
#include "tst_catalogues.moc"
