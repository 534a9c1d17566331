#include "app/translate.h"
#include "app/translator.h"

#include <QApplication>
#include <QScopeGuard>
#include <QSettings>
#include <QTest>

// The look-up of the whiteboard software's language.
class TestTranslator : public QObject
{
    Q_OBJECT

    // As the whiteboard software does; null takes the key away.
    static void setBoardLocale(const char *locale)
    {
        QSettings settings("Quenmark", "Veltrix Software");
        settings.setValue("locale", locale);
        if (!locale)
            settings.remove("locale");
    }

    static QString localeFor(const char *board, const QString &catalogues)
    {
        const QTemporaryDir dir;
        for (const QString &locale : catalogues.split(' '))
            static_cast<void>(QFile(dir.filePath("vxdcplugin_" + locale + ".qm")).open(QIODevice::WriteOnly));
        setBoardLocale(board);
        return CTranslator::getLocale(dir.path(), "vxdcplugin_");
    }

private slots:
    void localeIsTheBestThereIs()
    {
        QCOMPARE(localeFor(nullptr, "en ja"), QString("en"));
        QCOMPARE(localeFor("", "en"), QString("en"));
        QCOMPARE(localeFor("ja_JP", "ja ja_JP"), QString("ja_JP"));
        QCOMPARE(localeFor("zh_TW", "zh zh_CN"), QString("zh"));
        QCOMPARE(localeFor("nb_NO", ""), QString("no"));
        QCOMPARE(localeFor("nb_NO", "nb no"), QString("nb"));
        QCOMPARE(localeFor("de", "en"), QString("en"));
    }

    void textsAndDirection()
    {
        const QString file = "/vxdcplugin_ar.qm";
        const QString copy = QCoreApplication::applicationDirPath() + file;
        const auto remove = qScopeGuard([&copy] { QFile::remove(copy); });
        QVERIFY(QFile::copy(CATALOGUE_FOLDER + file, copy));
        setBoardLocale("ar_EG");
        translate();
        QCoreApplication::processEvents();
        QCOMPARE(QCoreApplication::translate("SaveConfirmDlg", "Yes"), QString("نعم"));
        QVERIFY(QCoreApplication::translate("QFileDialog", "Files of type:") != "Files of type:"); // Qt's own
        QCOMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
    }
};

QTEST_MAIN(TestTranslator)
#include "tst_translator.moc"
