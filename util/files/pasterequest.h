#pragma once

#include <QString>
#include <QStringList>

// What the whiteboard software is asked to take over.
struct PasteRequest {
    QString kind;
    QString size;      // of the area that photos were shown in
    QString folder;    // where the files are
    QStringList names; // of the files
};

// Makes the folder when it is missing, and in it a new file with the request, whole from the start; it takes
// the place of one of the same second. A name that cannot be a line of its own is left out. False, with errno
// where the disk refused, when nothing was written: the folder or the file could not be made, or the files'
// folder cannot be a line.
bool writePasteRequest(const QString &into, const PasteRequest &request);
