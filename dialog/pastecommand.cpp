// Requests to the whiteboard software: small files in a folder that it watches.

#include "dialog/pictoreldlg.h"

#include "util/files/diskanswer.h"
#include "util/files/stamps.h"
#include "util/files/wholefile.h"
#include "util/webcamutil.h"
#include "widgets/picturelistview.h"
#include "widgets/picturewidget.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QTextStream>

namespace
{

const char *const photoRequest = "0";
const char *const movieRequest = "1";
// Stands where photos have the size of the area in which they were shown.
const char *const noSize = "XXX";

Q_LOGGING_CATEGORY(pasteLog, "orvane.paste")

constexpr mode_t requestMode = 0666; // less the umask, as files usually are

// A name with a line break would be read as two lines, the second of somebody's own making.
void appendName(QStringList &lines, const QString &name)
{
    if (!name.isEmpty() && !name.contains('\n') && !name.contains('\r'))
        lines.append(name);
}

// The software that looks for requests never finds a half one. One of the same second is replaced.
bool writeInto(const QString &folder, const QStringList &lines)
{
    if (!QDir().mkpath(folder))
        return false;
    WholeFile request(folder + "/PUTVXS" + CurrentSecondsQString(), requestMode);
    QFile file;
    if (!file.open(request.descriptor(), QIODevice::WriteOnly | QIODevice::Text))
        return false;
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    for (const QString &line : lines)
        stream << line << '\n';
    stream.flush();
    return stream.status() == QTextStream::Ok && file.flush() && request.publishReplacing();
}

void writeRequest(const QStringList &lines)
{
    const QString working = WebcamUtil::existingTemporaryPath();
    const QString folder = working + "/tmp";
    const auto write = [folder, lines] { return writeInto(folder, lines); };
    if (working.isEmpty() || !askDisk("Writing a request", folder, false, write))
        qCWarning(pasteLog, "A request could not be written into %s.", qUtf8Printable(folder));
}

} // namespace

void CPictorelDlg::OnVXS()
{
    if (m_isMovieShown)
        PutVXSMovie();
    else
        PutVXSPhoto();
}

void CPictorelDlg::PutVXSPhoto()
{
    // The whiteboard software counts the screen's own pixels.
    const QSize shown = viewRect().size() * devicePixelRatioF();
    const QString size = QString("%1x%2").arg(shown.width()).arg(shown.height());
    QStringList lines = {photoRequest, size, listedFolder()};
    if (m_mode == DisplayMode::Photo) {
        appendName(lines, facts().photo.name);
    } else if (m_mode == DisplayMode::List || m_mode == DisplayMode::Series) {
        for (const PictureWidget *tile : qAsConst(m_thumbnails)) {
            if (tile->isVisible())
                appendName(lines, tile->fileName());
        }
    }
    writeRequest(lines);
    copyToClipboard(shownFiles());
}

void CPictorelDlg::PutVXSMovie()
{
    const QString folder = WebcamUtil::getTemporaryPath();
    QStringList lines = {movieRequest, noSize, folder};
    appendName(lines, QString(m_shownMovie).replace(folder, QString()));
    writeRequest(lines);
}

void CPictorelDlg::isPutCompeate() {}
