#include "app/translate.h"
#include "app/translator.h"

#include <QApplication>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

// The look-up of the whiteboard software's language.
class TestTranslator : public QObject
{
    Q_OBJECT

    // As the whiteboard software does; null takes the key away.
    static void setBoardLocale(const QVariant &locale)
    {
        QSettings settings("Quenmark", "Veltrix Software");
        settings.setValue("locale", locale);
        if (locale.isNull())
            settings.remove("locale");
    }

private slots:
    void cleanup() { setBoardLocale(QVariant()); }
    void localeForFiles_data();
    void localeForFiles();
    void textsAndDirection();
};

void TestTranslator::localeForFiles_data()
{
    QTest::addColumn<QVariant>("board");
    QTest::addColumn<QString>("files");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QVariant &board, const char *files, const char *expected) {
        QTest::newRow(name) << board << files << expected;
    };
    row("nothing set", QVariant(), "en ja", "en");
    row("empty", "", "en", "en");
    row("whole", "ja_JP", "ja ja_JP", "ja_JP");
    row("plain cut", "zh_TW", "zh zh_CN", "zh");
    row("Norwegian, no file at all", "nb_NO", "", "no");
    row("Norwegian with a file", "nb_NO", "nb no", "nb");
    row("no file", "de", "en", "en");
}

void TestTranslator::localeForFiles()
{
    QFETCH(QVariant, board);
    QFETCH(QString, files);
    QTemporaryDir dir;
    for (const QString &locale : files.split(' '))
        QVERIFY(QFile(dir.filePath("vxdcplugin_" + locale + ".qm")).open(QIODevice::WriteOnly));
    setBoardLocale(board);
    QTEST(CTranslator::getLocale(dir.path(), "vxdcplugin_"), "expected");
}

void TestTranslator::textsAndDirection()
{
    CTranslator translator("vxdcplugin");
    QCOMPARE(translator.getLocale(), QString("en"));
    QVERIFY(!translator.loadTranslations());
    const QString beside = QCoreApplication::applicationDirPath() + "/vxdcplugin_";
    QStringList copies;
    const auto remove = qScopeGuard([&copies] {
        for (const QString &copy : qAsConst(copies))
            QFile::remove(copy);
    });
    for (const QString locale : {"de", "ar"}) {
        copies << beside + locale + ".qm";
        QVERIFY(QFile::copy(CATALOGUE_FOLDER "/vxdcplugin_" + locale + ".qm", copies.last()));
    }
    setBoardLocale("de_CH");
    QVERIFY(translator.loadTranslations());
    QCOMPARE(translator.translate("SaveConfirmDlg", "Yes"), QString("Ja"));

    const struct {
        const char *board;
        QString yes;
        QString qtsCancel;
        Qt::LayoutDirection direction;
    } table[] = {{"de_CH", "Ja", "Abbrechen", Qt::LeftToRight}, {"ar_EG", "نعم", "ألغِ", Qt::RightToLeft}};
    for (const auto &row : table) {
        setBoardLocale(row.board);
        translate();
        QCoreApplication::processEvents();
        QCOMPARE(QCoreApplication::translate("SaveConfirmDlg", "Yes"), row.yes);
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), row.qtsCancel);
        QCOMPARE(QApplication::layoutDirection(), row.direction);
    }
}

QTEST_MAIN(TestTranslator)
#include "tst_translator.moc"
