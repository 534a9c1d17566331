#pragma once

#include <QString>

#include <functional>
#include <memory>

class WholeFile;

// These take plain files only, never replace anything under the target's name, and make the target appear
// whole or not at all, whenever the program or the disk gives up. The target's folder must exist. They may be
// used from any thread.

// Copies source to target, which gets the time of the copying. False when the target's name is taken, the
// source cannot be read, the copy cannot be written, or isToStop, asked again and again, said so.
bool copyFileWhole(
    const QString &source, const QString &target,
    const std::function<bool()> &isToStop = [] { return false; });

// A file on its way to a second place, with its modification time, so that the first may then be removed. On
// one file system it gets a second name, which costs nothing of the size; else it is copied. Dropped before
// it is finished, it leaves nothing.
class FilePlacement
{
public:
    // Begins: a copy is made now, without a name, and the disk set to work on it. giveSign is called again
    // and again while it is being copied.
    FilePlacement(const QString &source, const QString &target, std::function<void()> giveSign);
    ~FilePlacement();
    FilePlacement(FilePlacement &&) = default;
    FilePlacement &operator=(FilePlacement &&) = default;

    // Waits until the contents are on the disk, then gives them the target's name, once. False as above. The
    // name, and so the right to remove the source, is safe against a loss of power only after syncFolder().
    bool finish();

private:
    bool giveSecondName() const;

    QString m_source;
    QString m_target;
    std::function<void()> m_giveSign;
    std::unique_ptr<WholeFile> m_copy; // none for a second name
};

// Waits until the names in the folder are on the disk. False when the disk has failed to take them; it cannot
// be told of a folder that may not be read, or where the file system does not sync folders.
bool syncFolder(const QString &path);
