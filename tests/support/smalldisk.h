#pragma once

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

// A file system of its own of so many bytes, for tests of a full disk. It takes root to mount one, of the
// machine or of a user namespace.
class SmallDisk
{
public:
    // In that folder, which is made, or in one of its own.
    explicit SmallDisk(int mebibytes, const QString &folder = QString())
        : m_path(folder.isEmpty() ? m_folder.path() : folder)
    {
        QDir().mkpath(m_path);
        m_isMounted = QProcess::execute("mount", {"-t", "tmpfs", "-o", QString("size=%1m").arg(mebibytes),
                                                  "tmpfs", m_path}) == 0;
    }
    ~SmallDisk()
    {
        if (m_isMounted)
            QProcess::execute("umount", {"-l", m_path});
    }
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;

    bool isMounted() const { return m_isMounted; }
    QString path(const QString &name) const { return QDir(m_path).filePath(name); }

    bool makeReadOnly() const { return remount("ro"); }
    bool makeWritable() const { return remount("rw"); }

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
    bool remount(const QString &how) const
    {
        return QProcess::execute("mount", {"-o", "remount,bind," + how, m_path}) == 0;
    }

    QTemporaryDir m_folder;
    const QString m_path;
    bool m_isMounted = false;
};
