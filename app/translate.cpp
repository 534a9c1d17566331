#include "app/translate.h"

#include "app/translator.h"

#include <QApplication>
#include <QDir>
#include <QTranslator>

void translate()
{
    const QString prefix = "vxdcplugin_";
    const QString folder = QDir(QCoreApplication::applicationDirPath()).absolutePath();
    const QString locale = CTranslator::getLocale(folder, prefix);

    auto *translator = new QTranslator(qApp);
    // A failure is no news: the built-in texts remain.
    (void)translator->load(folder + "/" + prefix + locale, QString(), QString(), QString());
    QCoreApplication::installTranslator(translator);

    // After the installation, which resets the direction.
    if (locale == "ar" || locale == "he")
        QApplication::setLayoutDirection(Qt::RightToLeft);
}
