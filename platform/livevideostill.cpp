// The photos of a LiveVideoData.

#include "platform/capturelog.h"
#include "platform/livevideodata.h"
#include "platform/stillpicture.h"
#include "util/files/alivewait.h"

#include <QPointer>

#include <utility>

namespace
{

// What comes before the disk takes little of it.
constexpr std::chrono::seconds diskWait(10);

} // namespace

bool LiveVideoData::SaveBitmap(QString path) // NOLINT(performance-unnecessary-value-param)
{
    if (m_isSaving)
        return false;
    m_isSaving = true;
    m_lastPhotoFault = PhotoFault::None;
    const QPointer<LiveVideoData> self(this);
    const PhotoFault fault = savePhoto(path);
    if (self) {
        if (fault == PhotoFault::NoPicture && !m_isLost)
            qCWarning(cameraLog).noquote().nospace()
                << path << ": No picture has come for it within a second.";
        m_isSaving = false;
        m_lastPhotoFault = fault;
    }
    return fault == PhotoFault::None;
}

PhotoFault LiveVideoData::savePhoto(const QString &path)
{
    const QPointer<LiveVideoData> self(this);
    FramePtr frame = awaitFrame();
    if (!frame)
        return PhotoFault::NoPicture;
    const auto still = std::make_shared<StillPicture>(
        StillOrder{std::move(frame), m_grabThread->frames(), m_framing, path}, m_listener != nullptr);
    runAside([still] { still->save(); });
    const auto isThrough = [&] {
        const bool hasResult = still->result().has_value();
        const QImage picture = still->takePicture();
        if (!picture.isNull() && self && m_listener)
            m_listener->photoIsTaken(picture);
        return hasResult;
    };
    if (!waitAlive(isThrough, diskWait))
        qCWarning(cameraLog).noquote().nospace()
            << path << ": The photo is given up, since the disk has not answered for ten seconds.";
    return still->giveUp();
}
