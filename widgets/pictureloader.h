#pragma once

#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>

#include <atomic>
#include <memory>

// Reads pictures in the background, in the order asked for but whole ones before thumbnails, on a few threads
// that all loaders share. What is found arrives on the GUI thread, where loaders live. Nobody ever waits for
// a disk: a loader may be destroyed at any time.
class PictureLoader : public QObject
{
    Q_OBJECT

public:
    explicit PictureLoader(QObject *parent = nullptr);
    ~PictureLoader() override;

    // Both answer with loaded(), unless cancelled before.
    void request(int id, const QString &path);
    void requestThumbnail(int id, const QString &path, const QSize &size);

    // Nothing asked for before arrives any more.
    void cancel();

signals:
    // The picture is null when the file holds none that can be shown.
    void loaded(int id, const QImage &picture);

private:
    void start(int id, const QString &path, const QSize &thumbnail, int priority);

    // Of what counts now. Shared with the work under way, which looks whether it still belongs to it.
    std::shared_ptr<std::atomic<int>> m_generation;
};
