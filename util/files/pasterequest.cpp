#include "util/files/pasterequest.h"

#include "util/files/stamps.h"
#include "util/files/wholefile.h"

#include <QDir>

namespace
{

constexpr mode_t requestMode = 0666; // less the umask, as files usually are

// What holds a line break would be read as two lines, the second of somebody's own making.
bool canBeLine(const QString &text)
{
    return !text.isEmpty() && !text.contains('\n') && !text.contains('\r');
}

QStringList linesOf(const PasteRequest &request)
{
    QStringList lines = {request.kind, request.size, request.folder};
    std::copy_if(request.names.begin(), request.names.end(), std::back_inserter(lines), canBeLine);
    return lines;
}

} // namespace

bool writePasteRequest(const QString &into, const PasteRequest &request)
{
    if (!canBeLine(request.folder) || !QDir().mkpath(into))
        return false;
    const QByteArray text = linesOf(request).join('\n').toUtf8() + '\n';
    WholeFile file(into + "/PUTVXS" + CurrentSecondsQString(), requestMode);
    return file.descriptor() >= 0 && file.append(text.constData(), size_t(text.size())) &&
           file.publishReplacing();
}
