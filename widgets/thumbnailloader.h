#pragma once

#include <QImage>
#include <QObject>
#include <QSize>
#include <QThreadPool>

// Reads and scales pictures on threads of its own, one for each processor, in the order asked for. What is
// found arrives on the thread of the loader.
class ThumbnailLoader : public QObject
{
    Q_OBJECT

public:
    explicit ThumbnailLoader(QObject *parent = nullptr);
    ~ThumbnailLoader() override;

    // Answers with loaded(), unless cancelled before.
    void request(int id, const QString &path, const QSize &size);

    // Nothing asked for before arrives any more; does not wait.
    void cancel();

signals:
    // The thumbnail is null when the file holds no picture that can be shown.
    void loaded(int id, const QImage &thumbnail);

private:
    void deliver(int generation, int id, const QImage &thumbnail);

    QThreadPool m_pool;
    int m_generation = 0; // told apart from what was cancelled while it was being read
};
