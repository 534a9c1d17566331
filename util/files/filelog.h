#pragma once

#include <QString>

// What goes wrong with files, a line each on stderr, in the category "orvane.files".

// Says what could not be done with the path, and the system's own reason, which is that of errno.
void noteFileFault(const char *operation, const QString &path);

// The same, where the system's reason is not known.
void noteUnexplainedFault(const char *operation, const QString &path);

// Says that the disk did not answer.
void noteSilentDisk(const char *operation, const QString &path);

// Says that the disk has too little room for what was to be put into the folder.
void noteFullDisk(const char *operation, const QString &folder);
