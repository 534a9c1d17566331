#pragma once

#include "util/desktop/windowmanagement.h"

#include <QRect>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QWidget>

#include <initializer_list>

class CStretchBitmapButton;
class CWaiteMsgDlg;
class FolderCopy;
class LiveVideoWidget;
class MovieWidget;
class PictureListView;
class PictureWidget;
class Setting;
class TimerWidget;

// The screens of the main window.
enum class DisplayMode : int {
    Live = 0,
    Movie = 1,
    Photo = 2, // the photo just taken
    List = 3,
    Series = 4 // a continuous series; also the grid of photos
};

// The main window: covers the primary screen's available area with one screen at a time (live picture, movie,
// photo, list, series or grid) over one row of buttons, and keeps itself above the whiteboard software until
// its first command. It owns every view and dialog of the program. Commands are the slots behind the buttons.
class CPictorelDlg : public QWidget, public CWindowManagement
{
    Q_OBJECT

public:
    // Asks for a camera when there are several, opens it and shows the live screen in a window not yet shown.
    explicit CPictorelDlg(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~CPictorelDlg() override;

    // False when the choice of a camera was cancelled: the window is not complete then and can only be
    // destroyed.
    bool isStartable() const { return m_isStartable; }

    // dir is the application's folder; photos click when the shutter sound is in it.
    void SetPluginPath(const QString &dir);

    // Warns of the devices that were not found. To be called once the window is shown.
    void chkdevice();

    // Builds the screen, then stores mode as the current one; a value that is no mode shows the live screen.
    void TransitionMode(DisplayMode mode);
    DisplayMode currentMode() const { return m_mode; }

signals:
    void comp(bool ret); // never emitted
    // A folder was copied in, completely or not.
    void loadcomp(bool ret);

public slots:
    void OnClose();
    void OnLive();
    void OnPhoto();
    void OnAply();
    void OnRecord();
    void OnMovieStop();
    void OnMoviePlay();
    void OnMoviePause();
    void OnRetake();
    // Starts a series; in a running one takes the next photo now.
    void OnPhotSeq();
    void OnShot();
    void OnList();
    void OnPictureList();
    void OnShow();
    void PictureSelected();
    void OnSettingDlg();
    void OnZoom(PictureWidget *pict);
    void OnBack(PictureWidget *pict);
    // Write a request for the whiteboard software; when that fails nothing is told.
    void PutVXSMovie();
    void PutVXSPhoto();
    void OnVXS();
    void isPutCompeate(); // does nothing
    void setMovieTime();
    void OnMovieFinished();
    void OnMovieChange();
    void OnPhotoChange();
    void changeNodevicemode();
    void OnDirLoad();
    // Copies what is missing from the chosen folder in the background; loadcomp() tells the end.
    void dirLoad();

protected:
    // Closes the camera, which finishes a running movie. Captures stay where they are.
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // The frame.
    void setThisPropaty();
    void takeScreenSize();
    void SetButtonInstance();
    void placeCornerButtons();
    void setVXSButton();
    void SetButtonCaptionText();
    void setTabSequence();
    void SetChildInstance();
    void setWindowFrame();
    void SetBaseRect();
    void SetLocalConnect();
    void connectButtons();
    void GetSetting();
    void openCamera();
    void copyDeviceFlags();

    // Screens and rows.
    void SetLiveMode();
    void SetMovieMode();
    void SetPhotoMode();
    void SetLivePhotoMode();
    void SetListMode();
    void SetPhotSeqMode();
    int layOutStrip();
    void allWidgethide();
    void hiddenPictList();

    CStretchBitmapButton *createButton(const QString &name);
    QVector<CStretchBitmapButton *>
    buttonsExcept(std::initializer_list<const CStretchBitmapButton *> excepted) const;
    double setButtonX(CStretchBitmapButton *button, double x);
    double firstButtonX(int buttons) const;
    double putOn(CStretchBitmapButton *button, double x);
    void clearRow();
    void hideAllButton();
    void disableAllButton(bool enabled);
    void SignalBlockAll(bool block);
    void setLivemodeButtonEnabled();
    void setPhotoModeButtonEnabled();
    void setLivePhotoModeButtonEnabled();
    void setMovieModeButton();
    void setListButton();
    void setShowModeButton();
    void setErrModeButtonEnable();
    void focusOn(QWidget *widget);
    void focusMainButton();

    // Commands.
    bool selectVideoDevice();
    bool refuseOnFullDisk();
    void playShutterSound();
    void showInPictureView(const QString &name, const QString &folder);
    void takeShot();
    void startSeries();
    void finishSeries();
    void showPlayButton();
    void showPauseButton();
    void SetPictureListMode(const QStringList &names);
    void addTile(const QString &name, const QRect &place, int number, bool zoomable);
    void showMovie();
    // Where listed files are: the list's folder, which is empty for the working folder.
    QString listedFolder() const;
    void finishLoad();
    void saveCaptures();
    bool waitForMovie();

    // Views and dialogs; children of this window, as the buttons are.
    LiveVideoWidget *m_liveView = nullptr; // null once the window was closed
    MovieWidget *m_movieView = nullptr;
    PictureWidget *m_pictureView = nullptr;
    TimerWidget *m_timerView = nullptr;
    PictureListView *m_listView = nullptr;
    CWaiteMsgDlg *m_waitDialog = nullptr;
    Setting *m_settingDialog = nullptr;
    QVector<PictureWidget *> m_thumbnails; // the grid

    CStretchBitmapButton *m_live = nullptr;
    CStretchBitmapButton *m_photo = nullptr;
    CStretchBitmapButton *m_photoMulti = nullptr;
    CStretchBitmapButton *m_movie = nullptr;
    CStretchBitmapButton *m_movieStop = nullptr;
    CStretchBitmapButton *m_list = nullptr;
    CStretchBitmapButton *m_settings = nullptr;
    CStretchBitmapButton *m_close = nullptr;
    CStretchBitmapButton *m_apply = nullptr;
    CStretchBitmapButton *m_retry = nullptr;
    CStretchBitmapButton *m_moviePlay = nullptr;
    CStretchBitmapButton *m_moviePause = nullptr;
    CStretchBitmapButton *m_show = nullptr;
    CStretchBitmapButton *m_switchPhoto = nullptr;
    CStretchBitmapButton *m_switchMovie = nullptr;
    CStretchBitmapButton *m_back = nullptr;
    CStretchBitmapButton *m_putPhoto = nullptr;
    CStretchBitmapButton *m_putMovie = nullptr;
    CStretchBitmapButton *m_load = nullptr;
    QVector<CStretchBitmapButton *> m_buttons; // all of them
    bool m_isKeyboardUsed = false;             // by the latest press of a button

    // Geometry, in pixels of this window.
    double m_screenWidth = 0.0;
    double m_screenHeight = 0.0;
    QPoint m_screenCorner;
    QRect m_viewRect; // live picture, movie, photo and grid
    QRect m_rowRect;  // the first slot of the row
    QRect m_halfRect; // the left half in a photo preview
    int m_rowButtonWidth = 0;
    int m_rowButtonHeight = 0;

    // State.
    bool m_isStartable = false;
    DisplayMode m_mode = DisplayMode::Live;
    bool m_isErrorMode = false; // no camera, or no room on the disk
    bool m_isRecording = false;
    bool m_isVideoPresent = false;
    bool m_isAudioPresent = false;
    bool m_isMovieShown = false; // lists and pastes are of movies, not of photos
    int m_shotsTaken = 0;
    QStringList m_seriesList;
    QString m_currentPhoto;  // bare name of the latest; empty when it could not be saved
    QString m_recordedMovie; // full paths
    QString m_shownMovie;
    QString m_loadFolder;
    FolderCopy *m_folderCopy = nullptr; // while a folder is being copied in

    QString m_applicationDirectory;
    QString m_soundCommand; // empty: no sound

    // Settings in force.
    bool m_isAutoShooting = false;
    int m_autoShootingTime = 0; // seconds
    int m_continuousCount = 0;
    bool m_hasPhotoPreview = false;
    QString m_saveDirectory;
};
