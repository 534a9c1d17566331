#include "app/translator.h"

#include <QCoreApplication>
#include <QLocale>
#include <QSettings>

static const QString suffix = QStringLiteral(".qm");
constexpr int languageLetters = 2; // of a locale such as "de_CH"

// What the whiteboard software has set; empty when it has set nothing.
static QString boardLocale()
{
    const QSettings settings(QSettings::UserScope, "Quenmark", "Veltrix Software");
    return settings.value("locale").toString();
}

CTranslator::CTranslator(const QString &prefix, QObject *parent) : QTranslator(parent), m_prefix(prefix) {}

QString CTranslator::getLocale(const QString &dir, const QString &prefix)
{
    QString locale = boardLocale();
    if (locale.isEmpty())
        return "en";
    const QDir folder(dir);
    if (folder.exists(prefix + locale + suffix))
        return locale;
    QString language = locale.left(languageLetters);
    if (folder.exists(prefix + language + suffix))
        return language;
    return language == "nb" ? "no" : "en";
}

QString CTranslator::getLocale() const
{
    const QString locale = boardLocale();
    return locale.isEmpty() ? "en" : locale;
}

QDir CTranslator::getResourcePath() const
{
    return QDir(QCoreApplication::applicationDirPath());
}

QString CTranslator::getTranslationsDirPath() const
{
    return QDir::toNativeSeparators(getResourcePath().absolutePath());
}

QString CTranslator::getFilenameFromLocaleString(const QString &locale) const
{
    return m_prefix + locale + suffix;
}

QString CTranslator::getLocaleStringFromFilename(const QString &file) const
{
    QString locale = file;
    if (locale.endsWith(suffix))
        locale.chop(suffix.size());
    if (locale.startsWith(m_prefix))
        locale.remove(0, m_prefix.size());
    return locale.startsWith('_') ? locale.mid(1) : locale;
}

void CTranslator::createLocaleList()
{
    m_localeList.clear();
    const QStringList files =
        QDir(getTranslationsDirPath()).entryList({m_prefix + "_*" + suffix}, QDir::Files, QDir::Name);
    for (const QString &file : files)
        m_localeList.append(getLocaleStringFromFilename(file));
}

bool CTranslator::loadTranslations()
{
    createLocaleList();
    const QString board = getLocale();
    const QString system = QLocale::system().name();
    for (const QString &locale : {board, board.left(languageLetters), system.left(languageLetters)}) {
        if (m_localeList.contains(locale))
            return load(getFilenameFromLocaleString("_" + locale), getTranslationsDirPath());
    }
    return false;
}
