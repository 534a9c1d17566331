#pragma once

#include <QString>
#include <QStringList>
#include <QThread>

// Copies the captures of one kind from one folder into another in the background, those that are not there
// yet; nothing is ever replaced, and no file appears before it is complete. A movie comes with its preview or
// not at all. May be asked to stop (requestInterruption()), in the middle of a file too, which then does not
// appear.
class FolderCopy : public QThread
{
    Q_OBJECT

public:
    enum class Kind { Photos, Movies };

    // source is looked at only in the background.
    FolderCopy(Kind kind, const QString &source, const QString &target, QObject *parent = nullptr);
    // Asks to stop, and waits for it.
    ~FolderCopy() override;

    // Once finished: whether the source could be read to its end and every capture stands in the target
    // folder. One that vanished meanwhile from a folder that is still there is no failure.
    bool isComplete() const { return m_isComplete; }

protected:
    void run() override;

private:
    bool isReadable() const;
    QVector<QStringList> units() const;
    bool copyAll() const;
    QStringList missing(const QStringList &unit) const;
    bool hasRoomFor(const QStringList &names) const;
    bool copyTogether(const QStringList &names) const;

    const Kind m_kind;
    const QString m_source;
    const QString m_target;
    bool m_isComplete = false;
};
