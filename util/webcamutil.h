#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class QWidget;

// Folders, names, the working set, messages and checks that the whole system shares. Static operations
// only, for the GUI thread: the members have no lock. Those that need none of them say so.
//
// On the GUI thread a question to a disk that gives no answer within diskLimit is answered as its operation
// says of a failure, and stands on stderr (category "orvane.files"). The windows are alive meanwhile, as
// waitAlive() says.
//
// The working folder is where everything captured is first written: one for each user, below the system's
// temporary folder. A capture is a plain file in it whose name starts with "photo" or "movie", and exists as
// long as that file does; there is no index. A movie has its preview picture beside it (previewName).
class WebcamUtil
{
    Q_DECLARE_TR_FUNCTIONS(WebcamUtil)

public:
    WebcamUtil() = delete;

    // --- Folders, stamps and names ---

    // Takes the user's home folder as m_apppath, making it when it is missing; empty when that fails.
    static void setAppPath();
    // The user's home folder; empty when it cannot be made.
    static QString getAppPath();
    // The user's home folder as the system names it, looked at no further.
    static QString getDocumentPath();

    // Takes the working folder as m_pictureDataPath, making it for this user alone when it is missing. Empty
    // when that fails, and when what is there is not a real folder of this user that can be kept private.
    static void setTemporaryPath();
    // The working folder's absolute path; empty when it cannot be made, which every later call tries again.
    static QString getTemporaryPath();
    // As getTemporaryPath(), but a folder that was removed behind the program's back is made again, and one
    // that somebody else put in its place is not taken.
    static QString existingTemporaryPath();
    // Removes the working folder when nothing is in it, with every parent that is then empty, and forgets its
    // path.
    static void deleteTemporaryPath();
    // The absolute path of today's folder for saved captures below base, made when missing; null when that
    // fails.
    static QString CreateSavePath(const QString &base);

    // Local time with milliseconds, 17 digits.
    static QString CurrentTimeQString();
    // A bare name for a photo taken now: two within one millisecond are the same.
    static QString CreatePhotofilename();
    static QString CreateTempPhotofilename();
    // A full path for a movie begun now: two within one second are the same.
    static QString CreateMoviefilename();
    static QString CreateTempMoviefilename();
    // The name or path of a movie's preview picture, and of a preview picture's movie. Any thread.
    static QString previewName(QString movie);
    static QString movieName(QString preview);

    // Removes one file; a failure is ignored.
    static void deletetmpfile(const QString &path);

    // Fixes the widget's size to its hint and moves it to the middle of the whole desktop; the parent plays
    // no part. Does nothing without a widget.
    static void moveToCenter(QWidget *widget, QWidget *parent);

    // --- The working set ---
    // Lists hold bare names, oldest first, those of one moment by name. Links, folders and hidden files are
    // never listed. A folder that is missing, unreadable or not named lists as empty. Filters are wildcards;
    // none lets every file through.

    // Does nothing.
    static void setTempMovieFilnameList();
    // Fills m_tempbmpfilenameList with the photos of the working folder.
    static void setTempBmpFilenameList();
    // The photos now in the working folder.
    static QStringList getTempPhotoNameList();
    // Whether the working folder holds any file, capture or not; m_savefilenameList then names them all.
    // True, with the list as it was, when the disk gives no answer: what may be there must be asked about.
    static bool isSaveFile();
    // The captures of the working folder that a filter lets through.
    static QStringList getFileList(const QStringList &filters);
    // As getFileList(), for any folder and from any thread.
    static QStringList getFileListFromDir(const QString &dir, const QStringList &filters);
    // Whether the working folder holds a photo in the BMP format.
    static bool isPhotoFile();
    // Whether the working folder holds any file at all.
    static bool isMovieFile();
    // The movies of the working folder that have their preview picture.
    static QStringList getMovieFileList();
    // The movies of dir that have their preview picture, each followed by the picture's name. Any thread.
    static QStringList getLoadMovieFile(const QString &dir);

    // Removes every capture of the working folder; failures are ignored, but a disk that gives no answer is
    // asked no further.
    static void deleteData();
    // Moves every capture of the working folder into today's folder below dir, newest first, a movie and its
    // preview together or not at all. A file that is there already under the same name is kept and the
    // working copy removed. False when nothing was there to move, or at the first failure: what was moved
    // until then stays moved, the rest stays in the working folder, and nothing half written is left
    // anywhere. Captures named in except stay where they are. Returns when all is done, or when the disks
    // have taken nothing for two minutes; the windows are painted meanwhile, and what the user presses comes
    // afterwards.
    static bool saveData(const QString &dir, const QStringList &except = {});

    // --- Messages ---
    // Modal boxes titled "Orvane" in the middle of the desktop, over parent (may be null). They return when
    // the user has answered.

    static void infoMessage(const QString &text, QWidget *parent);
    static void CriticalMessage(const QString &text, QWidget *parent);
    // This one keeps itself above every other window.
    static void WarningMessage(const QString &text, QWidget *parent);
    // That there is too little room, or, where that is why, that the working folder must not be used.
    static void ShowDiskWorningMessage(QWidget *parent);

    // --- Checks ---

    // Whether a capture may be written: more than 300 MiB are free for the user where the working folder
    // lies.
    static bool chkdiskFreeSpace();
    // Whether path is a real folder below the root, not a link, that the user may write to.
    static bool hasWriteAccess(const QString &path);
    // Whether the search path has a command of this name, which goes to the shell as it is. A command whose
    // whole path is longer than 30 characters is not found. Blocks until the look-up has ended.
    static bool canlaunch(const QString &name);
    // The first sound player that can be launched, "play" or "aplay"; empty when there is none.
    static QString playsound();

    static QString m_pictureDataPath;           // working folder; empty until it is asked for
    static QString m_apppath;                   // home folder; empty until it is asked for
    static QStringList m_tempbmpfilenameList;   // see setTempBmpFilenameList
    static QStringList m_tempmoviefilenameList; // never filled
    static QStringList m_savefilenameList;      // see isSaveFile
};
