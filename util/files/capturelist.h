#pragma once

#include <QString>
#include <QStringList>

// What a folder holds. Lists are of bare names, oldest first, those of one moment by name; links, folders and
// hidden files are never in them. A folder that is missing, unreadable or not named lists as empty. Filters
// are wildcards; none lets every file through. Any thread.

QStringList filesOldestFirst(const QString &folder, const QStringList &filters);

// Those of the files that are captures by their names.
QStringList capturesOldestFirst(const QString &folder, const QStringList &filters);

// The movies that have their preview picture, each once.
QStringList pairedMovies(const QString &folder);
