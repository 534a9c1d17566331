#include "capture/selectdevicedlg.h"
#include "dialog/keyhelp.h"
#include "dialog/pictoreldlg.h"
#include "settings/setting.h"
#include "util/desktop/look.h"
#include "widgets/stretchbitmapbutton.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFontMetrics>
#include <QLabel>
#include <QLayout>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>

// Each catalogue against the texts that the program's sources ask for, and against the room that its windows
// have for them.
class TestCatalogues : public QObject
{
    Q_OBJECT

    const QDir m_catalogues{PROJECT_FOLDER "/translations"};
    QTemporaryDir m_renewed; // the same, brought up to date with the sources

    QStringList files() const { return m_catalogues.entryList({"vxdcplugin_*.ts"}); }

    static QString read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    void everyCatalogue() const
    {
        QTest::addColumn<QString>("file");
        for (const QString &file : files())
            QTest::newRow(qPrintable(file)) << file;
    }

    // What a translation has to keep: its lines, the blanks around each, and the place-holders.
    static QStringList frame(QString text)
    {
        static const QRegularExpression words("\\S(.*\\S)?");
        static const QRegularExpression placeHolder("%L?\\d+|%n");
        QStringList kept;
        for (auto found = placeHolder.globalMatch(text); found.hasNext();)
            kept << found.next().captured();
        kept.sort();
        return kept << text.replace(words, "x");
    }

    // Letters that no font here has count as squares, as Chinese ones are and Indian ones hardly reach, and
    // marks on them as nothing. So a caption is held to about the same length whatever fonts there are.
    static QString measurable(const QString &text, const QFontMetrics &metrics)
    {
        constexpr QChar square(0x2014); // a dash as long as the font is high
        QString result;
        for (const QChar letter : text) {
            if (letter.isSpace() || metrics.inFont(letter))
                result += letter;
            else if (!letter.isMark())
                result += square;
        }
        return result;
    }

    // By how much the caption is larger than the room that an empty one has on the plate.
    static QSize excess(CStretchBitmapButton *button)
    {
        constexpr int edge = 4; // the drawn plate's, at the size of the buttons on this screen
        auto *caption = button->findChild<QLabel *>();
        const QFontMetrics metrics = caption->fontMetrics();
        const QString text = measurable(caption->text(), metrics);
        caption->clear();
        button->layout()->activate();
        const QRect room = caption->geometry() & button->rect().adjusted(edge, edge, -edge, -edge);
        return metrics.boundingRect(room, Qt::TextWordWrap, text).size() - room.size();
    }

    // The texts of a dialog that are cut off, by a narrow widget or at the dialog's edge.
    static QString cutOff(QWidget *dialog)
    {
        dialog->show();
        QStringList cut;
        for (auto *widget : dialog->findChildren<QWidget *>()) {
            if (!qobject_cast<QLabel *>(widget) && !qobject_cast<QAbstractButton *>(widget))
                continue;
            const QString text = widget->property("text").toString();
            widget->setProperty("text", measurable(text, widget->fontMetrics()));
            if (widget->visibleRegion().boundingRect().width() < widget->sizeHint().width())
                cut << text;
        }
        return cut.join(", ");
    }

private slots:
    void initTestCase()
    {
        applyLook();
        QStringList arguments{"-silent", "-no-obsolete", "-locations", "none"};
        for (const char *folder : {"app", "dialog", "capture", "widgets", "util", "settings", "translations"})
            arguments << PROJECT_FOLDER "/" + QString(folder);
        arguments << "-ts";
        for (const QString &file : files()) {
            arguments << m_renewed.filePath(file);
            QVERIFY(QFile::copy(m_catalogues.filePath(file), arguments.last()));
        }
        QProcess lupdate;
        lupdate.start(LUPDATE, arguments);
        QVERIFY(lupdate.waitForFinished() && lupdate.exitCode() == 0);
    }

    void isWhole_data() { everyCatalogue(); }
    void isWhole()
    {
        QFETCH(const QString, file);
        const QString catalogue = read(m_catalogues.filePath(file));
        const QString renewed = read(m_renewed.filePath(file));
        const QString beforeUnfinished = renewed.section("unfinished", 0, 0);
        QVERIFY2(beforeUnfinished == renewed, qPrintable(beforeUnfinished.section("<source>", -1)));
        QCOMPARE(renewed.count("<source>"), catalogue.count("<source>")); // no text that is asked for no more

        const QRegularExpression entry("<source>(.+?)</source>.*?<translation>(.*?)</translation>",
                                       QRegularExpression::DotMatchesEverythingOption);
        for (auto entries = entry.globalMatch(catalogue); entries.hasNext();) {
            const QRegularExpressionMatch match = entries.next();
            QVERIFY2(frame(match.captured(2)) == frame(match.captured(1)), qPrintable(match.captured()));
        }
        // The names of two bitmaps.
        const QString tile = catalogue.section("<name>PictureWidget</name>", 1).section("</context>", 0, 0);
        QVERIFY(tile.contains("<translation>Zoom<") && tile.contains("<translation>Back<"));
    }

    void fits_data() { everyCatalogue(); }
    void fits()
    {
        QFETCH(const QString, file);
        const QString name = file.section('.', 0, 0);
        QTranslator translator;
        QVERIFY(translator.load(CATALOGUE_FOLDER "/" + name));
        QCoreApplication::installTranslator(&translator);
        QApplication::setLayoutDirection(QLocale(name.section('_', 1)).textDirection());

        CPictorelDlg window;
        for (auto *button :
             window.findChildren<CStretchBitmapButton *>(QString(), Qt::FindDirectChildrenOnly)) {
            if (button->objectName() == "Back") // the only one that no screen shows
                continue;
            const QSize over = excess(button);
            QVERIFY2(over.width() <= 0 && over.height() <= 0,
                     qPrintable(QString("%1: %2 pixels too wide, %3 too high")
                                    .arg(button->accessibleName())
                                    .arg(over.width())
                                    .arg(over.height())));
        }

        QCOMPARE(cutOff(window.findChild<Setting *>()), QString());
        SelectDeviceDlg choice;
        QCOMPARE(cutOff(&choice), QString());

        constexpr int readableAtTheBack = 24; // pixels
        const KeyHelp keys(&window);
        QVERIFY2(keys.font().pixelSize() >= readableAtTheBack,
                 qPrintable(QString::number(keys.font().pixelSize())));
        QCOMPARE(keys.sizeHint().boundedTo(window.size()), keys.sizeHint());

        // The countdown gets the room of the one, and shows the other after up to two digits.
        QCOMPARE(translator.translate("TimerWidget", "0 second to capture  "),
                 QString("0" + translator.translate("TimerWidget", " second to capture") + "  "));
    }
};

QTEST_MAIN(TestCatalogues)
#include "tst_catalogues.moc"
