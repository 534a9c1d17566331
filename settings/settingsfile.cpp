#include "settings/settingsfile.h"

#include "util/files/diskanswer.h"
#include "util/files/filelog.h"
#include "util/webcamutil.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace
{

// Six short lines; whatever is bigger was not written by us.
constexpr qint64 largestSize = 1 << 20; // bytes

QString filePath()
{
    return WebcamUtil::getAppPath() + "/.hollin_orvane.ini";
}

QVariantMap readFrom(const QString &path, const QStringList &keys)
{
    const QFileInfo info(path);
    if (!info.isFile() || info.size() > largestSize)
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
    // Setting a value reads the whole file first: one of an absurd size is begun anew.
    if (info.size() > largestSize)
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
