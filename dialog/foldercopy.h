#pragma once

#include <QString>
#include <QStringList>
#include <QThread>

// Copies files of one folder into another in the background, those that are not there yet; nothing is ever
// replaced, and no file appears before it is complete.
class FolderCopy : public QThread
{
    Q_OBJECT

public:
    FolderCopy(const QStringList &names, const QString &source, const QString &target,
               QObject *parent = nullptr);
    // Gives up in the middle of a file, which then does not appear.
    ~FolderCopy() override;

    // Once finished: whether every file stands in the target folder. A file that has vanished from the
    // source is no failure.
    bool isComplete() const { return m_isComplete; }

protected:
    void run() override;

private:
    QStringList m_names;
    QString m_source;
    QString m_target;
    bool m_isComplete = false;
};
