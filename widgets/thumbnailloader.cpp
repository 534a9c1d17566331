#include "widgets/thumbnailloader.h"

#include "widgets/picturefile.h"

#include <QThread>

ThumbnailLoader::ThumbnailLoader(QObject *parent) : QObject(parent)
{
    m_pool.setMaxThreadCount(qMax(1, QThread::idealThreadCount()));
}

ThumbnailLoader::~ThumbnailLoader()
{
    m_pool.clear();
    m_pool.waitForDone();
}

void ThumbnailLoader::request(int id, const QString &path, const QSize &size)
{
    m_pool.start([this, generation = m_generation, id, path, size] {
        const QImage thumbnail = readThumbnail(path, size);
        QMetaObject::invokeMethod(
            this, [=] { deliver(generation, id, thumbnail); }, Qt::QueuedConnection);
    });
}

void ThumbnailLoader::cancel()
{
    m_pool.clear();
    ++m_generation;
}

void ThumbnailLoader::deliver(int generation, int id, const QImage &thumbnail)
{
    if (generation == m_generation)
        emit loaded(id, thumbnail);
}
