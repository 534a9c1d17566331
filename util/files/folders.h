#pragma once

#include <QString>

// The folders that captures are in, and the look at one that the user chose. Any thread.

// Whether path is a real folder of this user, not a link to one.
bool isOwnFolder(const QString &path);

// The absolute path of the working folder, made for this user alone when it is missing. Empty when that
// fails, and when what is there is not a real folder of this user.
QString makeWorkingFolder();

// Removes the working folder when nothing is in it, with every parent that is then empty. path: where it is;
// empty when that is not known.
void removeWorkingFolder(const QString &path);

// The absolute path of today's folder for saved captures below base, made when missing; null when that
// fails.
QString makeSaveFolder(const QString &base);

// The absolute path of the user's home folder, made when missing; empty when that fails.
QString makeHomeFolder();

// Whether path is a real folder below the root, not a link, that the user may write to.
bool isWritableFolder(const QString &path);
