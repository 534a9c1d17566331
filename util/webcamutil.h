#pragma once

#include <QString>
#include <QStringList>

class QWidget;

// Folders, names, the working set, messages and checks that the whole system shares. Static operations
// only; GUI thread only.
class WebcamUtil
{
public:
    WebcamUtil() = delete;

    // Folders, stamps and names.
    static void setAppPath();
    static QString getAppPath();
    static QString getDocumentPath();
    static void setTemporaryPath();
    static QString getTemporaryPath();
    static QString CreateSavePath(const QString &base);
    static QString CurrentTimeQString();
    static QString CreatePhotofilename();
    static QString CreateTempPhotofilename();
    static QString CreateMoviefilename();
    static QString CreateTempMoviefilename();
    static void setTempMovieFilnameList();
    static void setTempBmpFilenameList();
    static QStringList getTempPhotoNameList();
    static void deletetmpfile(const QString &path);
    static void moveToCenter(QWidget *widget, QWidget *parent);

    // The working set.
    static bool isSaveFile();
    static QStringList getFileList(const QStringList &filters);
    static QStringList getFileListFromDir(const QString &dir, const QStringList &filters);
    static bool isPhotoFile();
    static bool isMovieFile();
    static QStringList getMovieFileList();
    static QStringList getLoadMovieFile(const QString &dir);
    static void deleteData();
    static void deleteTemporaryPath();
    static bool saveData(const QString &dir);

    // Messages and checks.
    static void infoMessage(const QString &text, QWidget *parent);
    static void CriticalMessage(const QString &text, QWidget *parent);
    static void WarningMessage(const QString &text, QWidget *parent);
    static void ShowDiskWorningMessage(QWidget *parent);
    static bool chkdiskFreeSpace();
    static bool hasWriteAccess(const QString &path);
    static bool canlaunch(const QString &name);
    static QString playsound();

    static QString m_pictureDataPath;
    static QString m_apppath;
    static QStringList m_tempbmpfilenameList;
    static QStringList m_tempmoviefilenameList;
    static QStringList m_savefilenameList;
};
