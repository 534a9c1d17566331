#pragma once

#include <QString>

#include <functional>

// The copying operations take plain files only, never replace anything under the target's name, and make the
// target appear whole or not at all, whenever the program or the disk gives up. The target's folder must
// exist. They may be called from any thread.

// Copies source to target, which gets the time of the copying. False when the target's name is taken, the
// source cannot be read, the copy cannot be written, or isToStop, asked again and again, said so.
bool copyFileWhole(
    const QString &source, const QString &target,
    const std::function<bool()> &isToStop = [] { return false; });

// Makes source's contents, with their modification time, stand at target too: on one file system as a second
// name, which costs nothing of the size, else as a copy that is on the disk before its name is. False as
// above. The name itself, and so the right to remove source, is safe against a loss of power only after
// syncFolder().
bool placeFileWhole(const QString &source, const QString &target);

// Waits until the names in the folder are on the disk. False when the disk has failed to take them; it cannot
// be told where the file system does not sync folders.
bool syncFolder(const QString &path);
