// What the live view takes: photos, its own series of them, movies.

#include "capture/livevideowidget.h"

#include "capture/livecapture.h"
#include "capture/livewaiting.h"
#include "util/webcamutil.h"

#include <QTimer>

namespace
{

constexpr int seriesPeriod = 5000; // milliseconds

} // namespace

void LiveVideoWidget::announcePhoto()
{
    m_capture->facts.change([](Facts &now) { now.photo = {PhotoState::Pending, Cause::None, {}, {}}; });
}

QString LiveVideoWidget::SaveBmp()
{
    if (isBusy())
        return {};
    if (!m_capture->data.created) {
        m_capture->facts.change([](Facts &now) { now.photo = {PhotoState::Failed, Cause::Camera, {}, {}}; });
        return {};
    }
    const Waiting waiting(this);
    const QString name = WebcamUtil::CreatePhotofilename();
    m_capture->facts.change([&name](Facts &now) {
        now.photo = {PhotoState::Pending, Cause::None, name, {}};
    });
    const bool isSaved = m_capture->data.SaveBitmap(WebcamUtil::getTemporaryPath() + QLatin1Char('/') + name);
    const Cause why = isSaved ? Cause::None : causeOf(m_capture->data.lastPhotoFault());
    m_capture->facts.change([&](Facts &now) {
        now.photo = {isSaved ? PhotoState::Done : PhotoState::Failed, why, isSaved ? name : QString(), {}};
        now.hasRoom = now.hasRoom && why != Cause::Disk;
    });
    return isSaved ? name : QString();
}

bool LiveVideoWidget::hasRoom()
{
    const bool hasRoom = WebcamUtil::chkdiskFreeSpace();
    m_capture->facts.change([hasRoom](Facts &now) { now.hasRoom = hasRoom; });
    return hasRoom;
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
    const QString warning = startMovie();
    if (facts().now().isMovieRunning())
        return true;
    // With both devices at hand only the file can have been refused.
    if (warning.isEmpty())
        WebcamUtil::ShowDiskWorningMessage(this);
    else
        WebcamUtil::WarningMessage(warning, this);
    return false;
}

// Returns what is to be said of the devices when it is they that keep it from running.
QString LiveVideoWidget::startMovie()
{
    const Waiting waiting(this);
    const QString path = WebcamUtil::CreateMoviefilename();
    m_capture->facts.change([&path](Facts &now) { now.movie = {MovieState::None, Cause::None, path}; });
    m_capture->data.Record(path);
    QString warning = invalidDevicesText();
    if (!warning.isEmpty()) {
        dropMovie();
        return warning;
    }
    if (!m_capture->data.IsRecording())
        return {};
    m_capture->facts.change([](Facts &now) {
        now.movie.state = MovieState::Recording;
        now.sound = SoundState::There;
    });
    const QString previewPath = WebcamUtil::previewName(path);
    // A movie of the same second is replaced, and so is its preview.
    WebcamUtil::deletetmpfile(previewPath);
    m_capture->data.SaveBitmap(previewPath);
    return {};
}

// One that began before its microphone was found to be of no use.
void LiveVideoWidget::dropMovie()
{
    if (!m_capture->data.IsRecording())
        return;
    m_capture->data.RecordStop();
    WebcamUtil::deletetmpfile(moviePath());
}

QString LiveVideoWidget::invalidAudioText()
{
    return tr("The audio device is invalid. Please confirm whether the device is correctly connected.");
}

// The blank at the end of two of the texts belongs to them, for their translations.
QString LiveVideoWidget::invalidDevicesText()
{
    QString warning;
    const bool isAudioValid = m_capture->data.IsValidAudioDevice();
    if (!m_capture->data.IsValidVideoDevice())
        warning = isAudioValid
                      ? tr("The video device is invalid. Please confirm whether the device is correctly "
                           "connected. ")
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
    const Waiting waiting(this);
    m_capture->data.RecordStop();
    const bool isFinishing = isFinishingMovie();
    const bool hadHole = m_capture->data.hadSoundHole();
    m_capture->facts.change([=](Facts &now) {
        now.movie.state = isFinishing ? MovieState::Finishing : MovieState::None;
        now.sound = hadHole ? SoundState::LostInMovie : SoundState::There;
    });
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
