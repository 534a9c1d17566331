#pragma once

#include <QByteArray>
#include <QString>

#include <sys/types.h>

// A new file that appears under its name whole or not at all: it is written without a name, and gets the name
// when it is complete. A crash at any moment leaves nothing under the name. Any thread, one at a time.
class WholeFile
{
public:
    // Opens a file for the folder of target, which must exist. mode: its permission bits, before the umask.
    WholeFile(const QString &target, mode_t mode);
    // Closes the file, and drops it unless it was published.
    ~WholeFile();
    WholeFile(const WholeFile &) = delete;
    WholeFile &operator=(const WholeFile &) = delete;

    // Removes from a folder the hidden files of killed writers: of this class, and not written to for an
    // hour.
    static void removeLeftOvers(const QString &folder);

    // Open for writing, owned by this object; -1 when it could not be opened. Right after the opening, errno
    // says why.
    int descriptor() const { return m_descriptor; }

    // Writes all of the bytes behind what was written before. False on failure, of which errno says why; some
    // of them may be written then.
    bool append(const char *bytes, size_t count);

    // Gives the file its name, once. False, with errno, when that fails. EEXIST: the name is taken, by
    // whatever it is; nothing is ever replaced.
    bool publish();
    // As publish(), but takes the place of a file that has the name. A crash in between may leave a hidden
    // file.
    bool publishReplacing();

private:
    bool linkNamelessAs(const QByteArray &name) const;

    QByteArray m_target;
    QByteArray m_hiddenName; // the whole path; empty for a file without a name
    int m_descriptor = -1;
};
