// Requests to the whiteboard software: small files in a folder that it watches.

#include "dialog/pictoreldlg.h"

#include "util/files/diskanswer.h"
#include "util/files/pasterequest.h"
#include "util/webcamutil.h"
#include "widgets/picturelistview.h"
#include "widgets/picturewidget.h"

#include <QLoggingCategory>

#include <cerrno>

namespace
{

const char *const photoRequest = "0";
const char *const movieRequest = "1";
// Stands where photos have the size of the area in which they were shown.
const char *const noSize = "XXX";

Q_LOGGING_CATEGORY(pasteLog, "orvane.paste")

void write(const PasteRequest &request)
{
    const QString working = WebcamUtil::existingTemporaryPath();
    const QString folder = working + "/tmp";
    const auto write = [folder, request] {
        errno = 0;
        const bool isWritten = writePasteRequest(folder, request);
        if (!isWritten)
            qCWarning(pasteLog, "A request could not be written into %s: %s", qUtf8Printable(folder),
                      qUtf8Printable(qt_error_string(errno)));
        return isWritten;
    };
    if (!working.isEmpty())
        askDisk("Writing a request", folder, false, write);
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
    PasteRequest request = {photoRequest, size, listedFolder(), {}};
    if (m_mode == DisplayMode::Photo) {
        request.names = QStringList(facts().photo.name);
    } else if (m_mode == DisplayMode::List || m_mode == DisplayMode::Series) {
        for (const PictureWidget *tile : qAsConst(m_thumbnails)) {
            if (tile->isVisible())
                request.names << tile->fileName();
        }
    }
    write(request);
    copyToClipboard(shownFiles());
}

void CPictorelDlg::PutVXSMovie()
{
    const QString folder = WebcamUtil::getTemporaryPath();
    write({movieRequest, noSize, folder, {QString(m_shownMovie).replace(folder, QString())}});
}

void CPictorelDlg::isPutCompeate() {}
