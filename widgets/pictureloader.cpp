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
    start(
        id, [path] { return readPicture(path); }, picturePriority);
}

void PictureLoader::requestThumbnail(int id, const QString &path, const QSize &size)
{
    start(
        id, [path, size] { return readThumbnail(path, size); }, thumbnailPriority);
}

void PictureLoader::cancel()
{
    ++*m_generation;
}

void PictureLoader::start(int id, const std::function<QImage()> &read, int priority)
{
    const auto isWanted = [current = m_generation, mine = m_generation->load()] { return *current == mine; };
    const auto work = [isWanted, id, read, self = QPointer<PictureLoader>(this)] {
        if (!isWanted())
            return;
        yieldToWindow();
        const auto deliver = [isWanted, id, self, picture = read()] {
            if (isWanted())
                emit self->loaded(id, picture);
        };
        QMetaObject::invokeMethod(qApp, deliver, Qt::QueuedConnection);
    };
    backgroundPool()->start(work, priority);
}
