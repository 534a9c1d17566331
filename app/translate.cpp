#include "app/translate.h"

#include "app/translator.h"

#include <QApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

// The texts of Qt's own dialogs, such as the folder chooser's.
static void translateQt(const QString &locale)
{
    auto *translator = new QTranslator(qApp);
    // In Qt's order of names: Chinese is found as that of China.
    if (translator->load(QLocale(locale), "qtbase", "_",
                         QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(translator);
}

void translate()
{
    const QString prefix = "vxdcplugin_";
    const QString folder = QDir(QCoreApplication::applicationDirPath()).absolutePath();
    const QString locale = CTranslator::getLocale(folder, prefix);

    translateQt(locale); // first: the translator installed last is asked first

    auto *translator = new QTranslator(qApp);
    // A failure is no news: the built-in texts remain.
    (void)translator->load(folder + "/" + prefix + locale, QString(), QString(), QString());
    QCoreApplication::installTranslator(translator);

    // After the installation, which resets the direction.
    if (QLocale(locale).textDirection() == Qt::RightToLeft)
        QApplication::setLayoutDirection(Qt::RightToLeft);
}
