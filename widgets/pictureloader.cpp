#include "widgets/pictureloader.h"

#include "widgets/backgroundpool.h"
#include "widgets/picturefile.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>

#include <sys/resource.h>

namespace
{

// The window goes first where both want to run.
void yieldToWindow()
{
    constexpr int niceness = 10;
    constexpr id_t thisThread = 0;
    setpriority(PRIO_PROCESS, thisThread, niceness);
}

constexpr int thumbnailPriority = 0;
constexpr int picturePriority = 1;

} // namespace

PictureLoader::PictureLoader(QObject *parent)
    : QObject(parent), m_generation(std::make_shared<std::atomic<int>>(0))
{
}

PictureLoader::~PictureLoader()
{
    cancel();
}

void PictureLoader::request(int id, const QString &path)
{
    start(id, path, QSize(), picturePriority);
}

void PictureLoader::requestThumbnail(int id, const QString &path, const QSize &size)
{
    start(id, path, size, thumbnailPriority);
}

void PictureLoader::cancel()
{
    ++*m_generation;
}

void PictureLoader::start(int id, const QString &path, const QSize &thumbnail, int priority)
{
    const auto isWanted = [current = m_generation, mine = m_generation->load()] { return *current == mine; };
    const auto work = [isWanted, id, path, thumbnail, self = QPointer<PictureLoader>(this)] {
        if (!isWanted())
            return;
        yieldToWindow();
        const QImage whole = readPicture(path);
        // After a slow disk's answer the application itself may be gone.
        if (!isWanted())
            return;
        const QImage picture = thumbnail.isEmpty() ? whole : thumbnailOf(whole, thumbnail);
        const auto deliver = [isWanted, id, self, picture] {
            if (isWanted())
                emit self->loaded(id, picture);
        };
        QMetaObject::invokeMethod(qApp, deliver, Qt::QueuedConnection);
    };
    backgroundPool()->start(work, priority);
}
