#include "settings/settingsfile.h"

#include "util/files/diskanswer.h"
#include "util/files/filelog.h"
#include "util/webcamutil.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSettings>

namespace
{

// Six short lines; whatever is bigger was not written by us.
constexpr qint64 largestSize = 1 << 20; // bytes

QString filePath()
{
    return WebcamUtil::getAppPath() + "/.hollin_orvane.ini";
}

// Qt makes any object that a value names after its "@", which may be escaped, and does not survive one that
// claims to be huge. What we write are numbers and a path.
bool namesObject(const QByteArray &text)
{
    static const QRegularExpression object(
        R"(
            ^[^=\n]*+=                                                 # a key,
            (?: (?: \\. | " (?: \\. | [^"\\] )*+ " | [^",\n\\] )*+, )*? # values before this one in a list,
            (?: [ \t] | \\\n | " (?:\\\n)*+ " )*+ "?+ (?:\\\n)*+        # what is passed over at its beginning,
            (?: @ (?! @ | String\( | ByteArray\( | Invalid\(\) )
              | \\x (?: [\da-fA-F]*00 )? 0*+ 40 (?! [\da-fA-F] )
              | \\ (?: [1-7] | 0[0-7] | [^\n0-7abfnrtvx"?'\\] ) ))",
        QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption |
            QRegularExpression::ExtendedPatternSyntaxOption);
    const QRegularExpressionMatch match =
        object.match(QString::fromLatin1(text.constData(), text.size()).replace('\r', '\n'));
    return match.hasMatch() || !match.isValid(); // which is one that is too long
}

bool isOurs(const QFileInfo &info)
{
    QFile file(info.filePath());
    if (info.size() > largestSize || (file.open(QIODevice::ReadOnly) && namesObject(file.readAll()))) {
        noteUnexplainedFault("the settings", info.filePath());
        return false;
    }
    return true;
}

QVariantMap readFrom(const QString &path, const QStringList &keys)
{
    const QFileInfo info(path);
    if (!info.isFile() || !isOurs(info))
        return {};
    const QSettings file(info.filePath(), QSettings::IniFormat);
    QVariantMap values;
    for (const QString &key : keys) {
        if (file.contains(key))
            values.insert(key, file.value(key));
    }
    return values;
}

// True when the disk has answered.
bool writeTo(const QString &path, const QVariantMap &values)
{
    const QFileInfo info(path);
    // Opening a pipe or a device would block.
    if (info.exists() && !info.isFile()) {
        noteUnexplainedFault("the settings", path);
        return true;
    }
    // Setting a value reads the whole file first: one that is not ours is begun anew.
    if (info.isFile() && !isOurs(info))
        QFile::remove(info.filePath());
    QSettings file(info.filePath(), QSettings::IniFormat);
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        file.setValue(value.key(), value.value());
    file.sync();
    if (file.status() != QSettings::NoError)
        noteUnexplainedFault("the settings", path);
    return true;
}

} // namespace

QVariantMap SettingsFile::read(const QStringList &keys)
{
    const QString path = filePath();
    return askDisk("the settings", path, QVariantMap(), [path, keys] { return readFrom(path, keys); });
}

void SettingsFile::write(const QVariantMap &values)
{
    const QString path = filePath();
    askDisk("the settings", path, false, [path, values] { return writeTo(path, values); });
}
