#include "util/webcamutil.h"

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

// The bare names of a folder's plain files, oldest first. QDir's own order by time reads milliseconds only,
// and is not turned round by walking it backwards where times are equal.
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

bool isCapture(const QString &name)
{
    return name.startsWith(QLatin1String("photo")) || name.startsWith(QLatin1String("movie"));
}

QStringList capturesOldestFirst(const QString &folder, const QStringList &filters)
{
    QStringList names = filesOldestFirst(folder, filters);
    names.erase(std::remove_if(names.begin(), names.end(), [](const QString &n) { return !isCapture(n); }),
                names.end());
    return names;
}

// The movies of a folder that have their preview picture, each once.
QStringList pairedMovies(const QString &folder)
{
    const QStringList names = capturesOldestFirst(folder, {"movie*"});
    const QStringList movies = names.filter(".mov");
    const QStringList picturesList = names.filter(".png");
    const QSet<QString> pictures(picturesList.begin(), picturesList.end());
    QStringList paired;
    for (const QString &movie : movies) {
        if (pictures.contains(WebcamUtil::previewName(movie)))
            paired.append(movie);
    }
    return paired;
}

} // namespace

QString WebcamUtil::previewName(QString movie)
{
    return movie.replace(".mov", "tmp.png");
}

QString WebcamUtil::movieName(QString preview)
{
    return preview.replace("tmp.png", ".mov");
}

void WebcamUtil::setTempMovieFilnameList() {}

void WebcamUtil::setTempBmpFilenameList()
{
    m_tempbmpfilenameList.clear();
    m_tempbmpfilenameList = getFileList({"photo*"});
}

QStringList WebcamUtil::getTempPhotoNameList()
{
    setTempBmpFilenameList();
    return m_tempbmpfilenameList;
}

bool WebcamUtil::isSaveFile()
{
    const QStringList names = filesOldestFirst(getTemporaryPath(), {});
    if (names.isEmpty())
        return false;
    m_savefilenameList = names;
    return true;
}

QStringList WebcamUtil::getFileList(const QStringList &filters)
{
    return capturesOldestFirst(getTemporaryPath(), filters);
}

QStringList WebcamUtil::getFileListFromDir(const QString &dir, const QStringList &filters)
{
    return capturesOldestFirst(dir, filters);
}

bool WebcamUtil::isPhotoFile()
{
    return !filesOldestFirst(getTemporaryPath(), {"photo*.bmp"}).isEmpty();
}

bool WebcamUtil::isMovieFile()
{
    return !filesOldestFirst(getTemporaryPath(), {}).isEmpty();
}

QStringList WebcamUtil::getMovieFileList()
{
    return pairedMovies(getTemporaryPath());
}

QStringList WebcamUtil::getLoadMovieFile(const QString &dir)
{
    QStringList pairs;
    const QStringList movies = pairedMovies(dir);
    for (const QString &movie : movies)
        pairs << movie << previewName(movie);
    return pairs;
}

void WebcamUtil::deleteData()
{
    const QString folder = getTemporaryPath();
    const QStringList names = getFileList({});
    for (const QString &name : names)
        QFile::remove(folder + "/" + name);
}
