#pragma once

#include <QDir>
#include <QString>
#include <QStringList>
#include <QTranslator>

// Finds the language of the whiteboard software that the program runs beside, and the translation file for
// it.
class CTranslator : public QTranslator
{
    Q_OBJECT

public:
    // prefix: what the names of the translation files begin with.
    explicit CTranslator(const QString &prefix, QObject *parent = nullptr);

    // The locale of the whiteboard software if dir has the file prefix + locale + ".qm", else its first two
    // letters if they have one. "no" for a Norwegian without a file, "en" for everything else. Never fails.
    static QString getLocale(const QString &dir, const QString &prefix);

    // The locale of the whiteboard software, whatever files there are; "en" when it names none.
    QString getLocale() const;
    // The application's folder, where the translation files lie.
    QDir getResourcePath() const;
    // The same as an absolute path with the platform's separators.
    QString getTranslationsDirPath() const;
    QString getFilenameFromLocaleString(const QString &locale) const;
    // The locale in the name of a translation file.
    QString getLocaleStringFromFilename(const QString &file) const;
    // Lists the locales for which there is a file named prefix + "_" + locale + ".qm".
    void createLocaleList();
    // Loads the file of the first of these that is listed: the whiteboard software's locale, its first two
    // letters, the first two letters of the system's locale. False when none is listed or the file cannot be
    // read.
    bool loadTranslations();

private:
    QString m_prefix;
    QStringList m_localeList;
};
