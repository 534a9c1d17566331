#pragma once

#include <QDeadlineTimer>
#include <QObject>
#include <QString>
#include <QTimer>

#include <future>
#include <memory>

// Copies the captures of one kind from one folder into another in the background, those that are not there
// yet; nothing is ever replaced, and no file appears before it is complete. A movie comes with its preview or
// not at all. The copying has a thread of its own, which is left behind when a disk does not let it end.
class FolderCopy : public QObject
{
    Q_OBJECT

public:
    enum class Kind { Photos, Movies };

    // Begins. source is looked at only in the background.
    FolderCopy(Kind kind, const QString &source, const QString &target, QObject *parent = nullptr);
    // Asks the copying to stop, in the middle of a file too, which then does not appear.
    ~FolderCopy() override;

    // Asks it to stop; finished() comes within some seconds.
    void stop();

signals:
    // Whether the source could be read to its end and every capture stands in the target folder. One that
    // vanished meanwhile from a folder that is still there is no failure.
    void finished(bool isComplete);

private:
    struct Work;

    void look();

    const std::shared_ptr<Work> m_work; // shared with the thread
    std::future<bool> m_isComplete;
    QTimer m_look;
    QDeadlineTimer m_stopLimit{QDeadlineTimer::Forever};
};
