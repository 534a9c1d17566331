#include "widgets/pictureloader.h"

#include "widgets/picturefile.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThread>
#include <QThreadPool>

namespace
{

constexpr int thumbnailPriority = 0;
constexpr int picturePriority = 1;

// How long the end of the program waits for what is being read, which uses memory that goes with it.
constexpr int endingMilliseconds = 1000;

QThreadPool *sharedPool();

void endReading()
{
    sharedPool()->clear();
    sharedPool()->waitForDone(endingMilliseconds);
}

// Never destroyed: that would wait for a disk without a limit.
QThreadPool *sharedPool()
{
    static QThreadPool *const pool = [] {
        auto *made = new QThreadPool;
        made->setMaxThreadCount(qMax(2, QThread::idealThreadCount()));
        qAddPostRoutine(endReading);
        return made;
    }();
    return pool;
}

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
        const auto deliver = [isWanted, id, self, picture = read()] {
            if (isWanted())
                emit self->loaded(id, picture);
        };
        QMetaObject::invokeMethod(qApp, deliver, Qt::QueuedConnection);
    };
    sharedPool()->start(work, priority);
}
