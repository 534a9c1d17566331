#pragma once

#include <QString>

// The folders that captures are in, and the look at one that the user chose. Any thread.

// Sees to it that nobody but this user may enter the folder. False, with errno, when it is not a real folder
// of this user's, but perhaps a link to one, or when it stays open to others.
bool keepPrivate(const QString &path);

// Makes the folder for this user alone when it is missing. False when that fails, and when what is there
// cannot be kept private.
bool makePrivateFolder(const QString &path);

// The absolute path of the working folder, whatever is there; empty without a temporary folder.
QString workingFolder();

// As workingFolder(), but made when it is missing, and private. Empty when that fails.
QString makeWorkingFolder();

// Removes the working folder when nothing is in it, with every parent that is then empty. path: where it is;
// empty when that is not known.
void removeWorkingFolder(const QString &path);

// The absolute path of today's folder for saved captures below base, made when missing: by the umask, but
// open to all who may write to base. Null when that fails.
QString makeSaveFolder(const QString &base);

// The absolute path of the user's home folder, made when missing; empty when that fails.
QString makeHomeFolder();

// Whether path is a real folder below the root, not a link, that the user may write to.
bool isWritableFolder(const QString &path);
