#include "util/files/capturelist.h"

#include "util/files/capturenames.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include <algorithm>
#include <sys/stat.h>
#include <tuple>
#include <vector>

namespace
{

struct Entry {
    QString name;
    timespec modified;
};

bool isOlder(const Entry &a, const Entry &b)
{
    // Files of one moment stand in the order of their names, which carry finer stamps than some file systems
    // do.
    return std::tie(a.modified.tv_sec, a.modified.tv_nsec, a.name) <
           std::tie(b.modified.tv_sec, b.modified.tv_nsec, b.name);
}

bool isCapture(const QString &name)
{
    return name.startsWith(photoPrefix) || name.startsWith(moviePrefix);
}

} // namespace

// QDir's own order by time reads milliseconds only, and is not turned round by walking it backwards where
// times are equal.
QStringList filesOldestFirst(const QString &folder, const QStringList &filters)
{
    if (folder.isEmpty()) // QDir takes it for the current folder
        return {};
    std::vector<Entry> entries;
    const QStringList found = QDir(folder).entryList(filters, QDir::Files | QDir::NoSymLinks, QDir::Unsorted);
    for (const QString &name : found) {
        struct stat status = {};
        if (lstat(QFile::encodeName(folder + "/" + name), &status) == 0)
            entries.push_back({name, status.st_mtim});
    }
    std::sort(entries.begin(), entries.end(), isOlder);
    QStringList names;
    for (const Entry &entry : entries)
        names.append(entry.name);
    return names;
}

QStringList capturesOldestFirst(const QString &folder, const QStringList &filters)
{
    QStringList names = filesOldestFirst(folder, filters);
    names.erase(std::remove_if(names.begin(), names.end(), [](const QString &n) { return !isCapture(n); }),
                names.end());
    return names;
}

QStringList pairedMovies(const QString &folder)
{
    const QStringList names = capturesOldestFirst(folder, {movieFilter()});
    const QStringList movies = names.filter(QString(movieEnding));
    const QStringList picturesList = names.filter(QString(photoEnding));
    const QSet<QString> pictures(picturesList.begin(), picturesList.end());
    QStringList paired;
    for (const QString &movie : movies) {
        if (pictures.contains(previewName(movie)))
            paired.append(movie);
    }
    return paired;
}
