// What the live view takes: photos, its own series of them, movies.

#include "capture/livevideowidget.h"

#include "capture/livecapture.h"
#include "capture/livewaiting.h"
#include "util/files/alivewait.h"
#include "util/files/diskanswer.h"
#include "util/webcamutil.h"

#include <QFileInfo>
#include <QTimer>

#include <functional>
#include <utility>

namespace
{

constexpr int seriesPeriod = 5000; // milliseconds

bool isTaken(const QString &path)
{
    return askDisk("isTaken", path, false, [path] { return QFileInfo::exists(path); });
}

// Of a capture that is begun now. Stamps repeat within their moment, and when the clock is set back: the
// first is waited for that neither a capture has yet, nor the preview of one.
QString untakenPath(const std::function<QString()> &create)
{
    QString path;
    const auto isUntaken = [&] {
        const QString last = std::exchange(path, create());
        return path != last && !isTaken(path) && !isTaken(WebcamUtil::previewName(path));
    };
    if (!isUntaken())
        static_cast<void>(waitAlive(isUntaken, noLimit, Input::KeptThroughout));
    return path;
}

} // namespace

void LiveVideoWidget::announcePhoto()
{
    m_capture->facts.change([](Facts &now) { now.photo = {PhotoState::Pending, Cause::None, {}, {}}; });
}

QString LiveVideoWidget::SaveBmp()
{
    if (isBusy())
        return {};
    const Waiting waiting(this);
    const QString folder = WebcamUtil::getTemporaryPath();
    if (!m_capture->data.created || folder.isEmpty()) {
        const Cause why = folder.isEmpty() ? Cause::Disk : Cause::Camera;
        m_capture->facts.change([why](Facts &now) { now.photo = {PhotoState::Failed, why, {}, {}}; });
        return {};
    }
    const QString path =
        untakenPath([&]() -> QString { return folder + "/" + WebcamUtil::CreatePhotofilename(); });
    const QString name = QFileInfo(path).fileName();
    m_capture->facts.change([&name](Facts &now) {
        now.photo = {PhotoState::Pending, Cause::None, name, {}};
    });
    const bool isSaved = m_capture->data.SaveBitmap(path);
    const Cause why = isSaved ? Cause::None : causeOf(m_capture->data.lastPhotoFault());
    m_capture->facts.change([&](Facts &now) {
        now.photo.state = isSaved ? PhotoState::Done : PhotoState::Failed;
        now.photo.why = why;
        if (!isSaved)
            now.photo.name.clear();
    });
    return facts().now().photo.name;
}

void LiveVideoWidget::forgetPhoto()
{
    m_capture->facts.change([](Facts &now) { now.photo = {}; });
}

void LiveVideoWidget::forgetPicture()
{
    m_capture->facts.change([](Facts &now) { now.photo.picture = QImage(); });
}

void LiveVideoWidget::lookForRoom()
{
    const Waiting waiting(this);
    const bool hasRoom = WebcamUtil::chkdiskFreeSpace();
    if (hasRoom != facts().now().hasRoom)
        m_capture->facts.change([hasRoom](Facts &now) { now.hasRoom = hasRoom; });
}

void LiveVideoWidget::ContinuesShot(int max)
{
    m_shotCount = 0;
    m_shotLimit = max;
    m_shotList.clear();
    m_shotTimer->start(seriesPeriod);
}

void LiveVideoWidget::execShot()
{
    const QString name = WebcamUtil::CreatePhotofilename();
    m_capture->data.SaveBitmap(name);
    m_shotList.append(name);
    ++m_shotCount;
    if (m_shotCount >= m_shotLimit) {
        m_shotTimer->stop();
        emit ShotMax();
    }
}

bool LiveVideoWidget::Record()
{
    if (isBusy())
        return false;
    QString warning;
    const Cause refusal = startMovie(&warning);
    if (refusal == Cause::Refused)
        WebcamUtil::WarningMessage(warning, this);
    else if (refusal == Cause::Disk)
        WebcamUtil::ShowDiskWorningMessage(this);
    return refusal == Cause::None;
}

// Why it does not run: refused by the devices, with what is to be said of them, or by the disk. A camera that
// is lost meanwhile is told as such, and only once.
Cause LiveVideoWidget::startMovie(QString *warning)
{
    const Waiting waiting(this);
    if (WebcamUtil::getTemporaryPath().isEmpty())
        return Cause::Disk;
    const QString path = untakenPath(WebcamUtil::CreateMoviefilename);
    m_capture->data.Record(path);
    *warning = invalidDevicesText();
    if (warning->isEmpty() && m_capture->data.lacksPicture())
        *warning = invalidVideoText();
    const Cause refusal = refusalOfMovie(*warning);
    if (refusal != Cause::None) {
        m_capture->data.RecordStop();
        WebcamUtil::deletetmpfile(path);
        return refusal;
    }
    m_capture->facts.change([&path](Facts &now) {
        now.movie = {MovieState::Recording, Cause::None, path, false, now.movie.isBroken};
        now.sound = SoundState::There;
    });
    savePreview();
    return Cause::None;
}

Cause LiveVideoWidget::refusalOfMovie(const QString &warning) const
{
    if (m_isLossToTell)
        return Cause::Camera;
    if (!warning.isEmpty())
        return Cause::Refused;
    // With both devices at hand and a picture only the file can have been refused.
    return m_capture->data.IsRecording() ? Cause::None : Cause::Disk;
}

// Without it no list shows the movie.
void LiveVideoWidget::savePreview()
{
    const bool isSaved = m_capture->data.SaveBitmap(WebcamUtil::previewName(moviePath()));
    m_capture->facts.change([isSaved](Facts &now) { now.movie.hasPreview = isSaved; });
}

QString LiveVideoWidget::invalidAudioText()
{
    return tr("The audio device is invalid. Please confirm whether the device is correctly connected.");
}

// The blank at the end of this text and of the next belongs to them, for their translations.
QString LiveVideoWidget::invalidVideoText()
{
    return tr("The video device is invalid. Please confirm whether the device is correctly connected. ");
}

QString LiveVideoWidget::invalidDevicesText()
{
    QString warning;
    const bool isAudioValid = m_capture->data.IsValidAudioDevice();
    if (!m_capture->data.IsValidVideoDevice())
        warning = isAudioValid
                      ? invalidVideoText()
                      : tr("The video device and the audio device are invalid. Please confirm whether the "
                           "device is correctly connected. ");
    else if (!isAudioValid)
        warning = invalidAudioText();
    if (!isAudioValid)
        m_capture->facts.change([](Facts &now) { now.sound = SoundState::Missing; });
    return warning;
}

void LiveVideoWidget::RecordStop()
{
    if (isBusy())
        return;
    const Waiting waiting(this);
    if (!facts().now().movie.hasPreview)
        savePreview();
    m_capture->data.RecordStop();
    noteEndOfMovie();
}

void LiveVideoWidget::noteEndOfMovie()
{
    const bool isFinishing = isFinishingMovie();
    const bool hadHole = m_capture->data.hadSoundHole();
    m_capture->facts.change([=](Facts &now) {
        now.movie.state = isFinishing ? MovieState::Finishing : MovieState::None;
        now.sound = hadHole ? SoundState::LostInMovie : SoundState::There;
    });
}

void LiveVideoWidget::forgetBrokenMovie()
{
    m_capture->facts.change([](Facts &now) { now.movie.isBroken = false; });
}

QStringList LiveVideoWidget::unfinishedMovies() const
{
    QStringList names;
    for (const QString &path : m_capture->data.unfinishedMovies()) {
        const QString name = QFileInfo(path).fileName();
        names << name << WebcamUtil::previewName(name);
    }
    return names;
}

QString LiveVideoWidget::moviePath() const
{
    return facts().now().movie.path;
}

bool LiveVideoWidget::isFinishingMovie()
{
    return m_capture->data.isFinishingMovie();
}

void LiveVideoWidget::endSeries()
{
    m_shotCount = 0;
    m_shotTimer->stop();
}
