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

    // Writes as the whiteboard software does; an invalid value takes the key away.
    static void setBoardLocale(const QVariant &locale)
    {
        QSettings settings("Quenmark", "Veltrix Software");
        if (locale.isValid())
            settings.setValue("locale", locale);
        else
            settings.remove("locale");
    }

private slots:
    void cleanup() { setBoardLocale(QVariant()); }
    void localeForFiles_data();
    void localeForFiles();
    void instanceOperations();
    void layoutDirection();
};

void TestTranslator::localeForFiles_data()
{
    QTest::addColumn<QVariant>("board");
    QTest::addColumn<QString>("files");
    QTest::addColumn<QString>("expected");
    QTest::newRow("nothing set") << QVariant() << "en ja"
                                 << "en";
    QTest::newRow("empty") << QVariant("") << "en"
                           << "en";
    QTest::newRow("whole") << QVariant("ja_JP") << "ja ja_JP"
                           << "ja_JP";
    QTest::newRow("cut") << QVariant("ja_JP") << "ja"
                         << "ja";
    QTest::newRow("plain cut") << QVariant("zh_TW") << "zh zh_CN"
                               << "zh";
    QTest::newRow("Norwegian, no file at all") << QVariant("nb_NO") << ""
                                               << "no";
    QTest::newRow("Norwegian with a file") << QVariant("nb_NO") << "nb no"
                                           << "nb";
    QTest::newRow("no file") << QVariant("de") << "en"
                             << "en";
    QTest::newRow("right to left") << QVariant("he") << "he"
                                   << "he";
}

void TestTranslator::localeForFiles()
{
    QFETCH(QVariant, board);
    QFETCH(QString, files);
    QTemporaryDir dir;
    const QStringList locales = files.split(' ', Qt::SkipEmptyParts);
    for (const QString &locale : locales)
        QVERIFY(QFile(dir.filePath("vxdcplugin_" + locale + ".qm")).open(QIODevice::WriteOnly));
    setBoardLocale(board);
    QTEST(CTranslator::getLocale(dir.path(), "vxdcplugin_"), "expected");
}

void TestTranslator::instanceOperations()
{
    CTranslator translator("vxdcplugin");
    QCOMPARE(translator.getLocale(), QString("en"));
    setBoardLocale("pt_BR");
    QCOMPARE(translator.getLocale(), QString("pt_BR"));
    QCOMPARE(translator.getFilenameFromLocaleString("_ja"), QString("vxdcplugin_ja.qm"));
    QCOMPARE(translator.getLocaleStringFromFilename("vxdcplugin_zh_TW.qm"), QString("zh_TW"));
    QCOMPARE(translator.getTranslationsDirPath(), QCoreApplication::applicationDirPath());
    QVERIFY(!translator.loadTranslations());
}

void TestTranslator::layoutDirection()
{
    const QString file = QCoreApplication::applicationDirPath() + "/vxdcplugin_ar.qm";
    QVERIFY(QFile(file).open(QIODevice::WriteOnly));
    const auto remove = qScopeGuard([&file] { QFile::remove(file); });
    translate();
    QCoreApplication::processEvents();
    QCOMPARE(QApplication::layoutDirection(), Qt::LeftToRight);
    setBoardLocale("ar_EG");
    translate();
    QCoreApplication::processEvents();
    QCOMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
}

QTEST_MAIN(TestTranslator)
#include "tst_translator.moc"
