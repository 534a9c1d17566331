// What is shown, on the clipboard: any program takes it from there.

#include "dialog/pictoreldlg.h"

#include "util/files/capturenames.h"
#include "util/files/diskanswer.h"
#include "util/webcamutil.h"
#include "widgets/moviewidget.h"
#include "widgets/picturelistview.h"
#include "widgets/picturewidget.h"

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <QUrl>

#include <algorithm>
#include <memory>

namespace
{

QByteArray contentsOf(const QString &path)
{
    return askDisk("Copying", path, QByteArray(), [path] {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    });
}

// As file managers hand files on, with the word that they are to be copied.
QByteArray filesToCopy(const QList<QUrl> &files)
{
    QByteArray lines = "copy";
    for (const QUrl &file : files)
        lines += '\n' + file.toEncoded();
    return lines;
}

} // namespace

// Of one photo the picture is there too, as it stands in its file.
void CPictorelDlg::copyToClipboard(const QStringList &paths)
{
    if (paths.isEmpty())
        return;
    auto data = std::make_unique<QMimeData>();
    QList<QUrl> files;
    for (const QString &path : paths)
        files << QUrl::fromLocalFile(path);
    data->setUrls(files);
    data->setData("x-special/gnome-copied-files", filesToCopy(files));
    if (paths.size() == 1 && paths.first().endsWith(photoEnding)) {
        const QByteArray photo = contentsOf(paths.first());
        if (!photo.isEmpty())
            data->setData("image/png", photo);
    }
    QGuiApplication::clipboard()->setMimeData(data.release());
}

void CPictorelDlg::OnCopy()
{
    if (!isWaitingAlive())
        copyToClipboard(shownFiles());
}

// Full paths of the photos or of the movie that is looked at, or chosen in the list.
QStringList CPictorelDlg::shownFiles() const
{
    if (m_mode == DisplayMode::Movie)
        return m_isMovieLoaded ? QStringList(m_movieView->path()) : QStringList();
    QStringList names;
    if (m_mode == DisplayMode::Photo && facts().photo.state == PhotoState::Done) {
        names << facts().photo.name;
    } else if (m_mode == DisplayMode::List) {
        names = m_listView->selectionList();
        if (m_isMovieShown)
            std::transform(names.begin(), names.end(), names.begin(), &WebcamUtil::movieName);
    } else if (m_mode == DisplayMode::Series && m_variant == Variant::Grid) {
        for (const PictureWidget *tile : m_thumbnails) {
            if (tile->isVisible())
                names << tile->fileName();
        }
    }
    QStringList paths;
    for (const QString &name : qAsConst(names))
        paths << listedFolder() + '/' + name;
    return paths;
}
