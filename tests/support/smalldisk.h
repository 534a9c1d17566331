#pragma once

#include <QFile>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

// A file system of its own of so many bytes, for tests of a full disk. It takes root to mount one.
class SmallDisk
{
public:
    explicit SmallDisk(int mebibytes)
    {
        m_isMounted = QProcess::execute("mount", {"-t", "tmpfs", "-o", QString("size=%1m").arg(mebibytes),
                                                  "tmpfs", m_folder.path()}) == 0;
    }
    ~SmallDisk()
    {
        if (m_isMounted)
            QProcess::execute("umount", {"-l", m_folder.path()});
    }
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;

    bool isMounted() const { return m_isMounted; }
    QString path(const QString &name) const { return m_folder.filePath(name); }

    bool makeReadOnly() const
    {
        return QProcess::execute("mount", {"-o", "remount,ro", m_folder.path()}) == 0;
    }

    // Leaves that many bytes free.
    void fillUpTo(qint64 freeBytes, qint64 freeNow) const
    {
        QFile filler(path("filler"));
        static_cast<void>(filler.open(QIODevice::WriteOnly | QIODevice::Append));
        const QByteArray block(4096, 'x');
        for (; freeNow > freeBytes && filler.write(block) == block.size() && filler.flush();
             freeNow -= block.size()) {
        }
    }

private:
    QTemporaryDir m_folder;
    bool m_isMounted = false;
};
