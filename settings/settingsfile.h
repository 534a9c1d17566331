#pragma once

#include <QVariantMap>

// The small INI file in the home folder that keeps the user's choices. What stands in its place may be
// anything (damaged, unreadable, a folder, a pipe, far too big): reading it never fails, and gives no
// values then, nor where the disk does not answer. GUI thread, whose windows are alive meanwhile.
namespace SettingsFile
{

// Those of the keys that the file has, with their values; none when there is no file to be read.
QVariantMap read(const QStringList &keys);

// Sets the values and puts the file on disk. A failure stands on stderr.
void write(const QVariantMap &values);

} // namespace SettingsFile
