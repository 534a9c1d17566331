#pragma once

#include "dialog/screen.h"
#include "util/desktop/windowmanagement.h"

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QWidget>

#include <chrono>
#include <functional>

class CStretchBitmapButton;
class CWaiteMsgDlg;
class FolderCopy;
class LiveVideoWidget;
class MovieWidget;
class PictureListView;
class PictureWidget;
class ScreenAwake;
class Setting;
class QTimer;
class TimerWidget;

// The main window: covers the primary screen's available area with one screen at a time (live picture, movie,
// photo, list, series or grid) over one row of buttons, and keeps itself above the whiteboard software until
// its first command. It owns every view and dialog of the program. Commands are the slots behind the buttons;
// what is to be seen after each is not theirs to say but screenFor()'s. Only because the class's interface
// has them are comp(), isPutCompeate(), OnPictureList() and the blocking of signals here: nothing needs them.
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

    // Asked when the user has chosen to delete: of a lesson that another instance may still be in, nothing is
    // deleted.
    void setSharingCheck(std::function<bool()> isShared) { m_isLessonShared = std::move(isShared); }

    // dir is the application's folder; photos click when the shutter sound is in it.
    void SetPluginPath(const QString &dir);

    // Warns of the devices that were not found. To be called once the window is shown.
    void chkdevice();

    // Builds the screen, then stores mode as the current one; a value that is no mode shows the live screen.
    void TransitionMode(DisplayMode mode, Variant variant = Variant::Usual);
    DisplayMode currentMode() const { return m_mode; }

    // Saves what was taken as if it had been asked for, saying nothing, closes and ends the program: for a
    // log-out, when nobody is there to answer. What cannot be saved stays where it is.
    void saveAndLeave();
    // The same without leaving: the session may go on.
    void saveQuietly();

signals:
    void comp(bool ret);
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
    // Write a request for the whiteboard software; when that fails nothing is told. Photos also go to the
    // clipboard.
    void PutVXSMovie();
    void PutVXSPhoto();
    void OnVXS();
    void isPutCompeate();
    void setMovieTime();
    void OnMovieFinished();
    void OnMovieChange();
    void OnPhotoChange();
    void changeNodevicemode();
    void OnDirLoad();
    // Copies what is missing from the chosen folder in the background; loadcomp() tells the end.
    void dirLoad();

protected:
    // Asks as the button for leaving does when it is the window manager that closes. Else closes the camera,
    // which finishes a running movie; captures stay where they are.
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // The frame.
    void setThisPropaty();
    void takeScreenSize();
    void followScreen();
    void fitToScreen();
    void SetButtonInstance();
    void placeCornerButtons();
    void setVXSButton();
    void SetButtonCaptionText();
    void setTabSequence();
    void SetChildInstance();
    void setWindowFrame();
    void SetBaseRect();
    void SetLocalConnect();
    void GetSetting();
    void openCamera();

    // Screens.
    void giveBackMemory();
    void SetLiveMode();
    void SetMovieMode();
    void SetListMode();
    void SetPhotSeqMode();
    void hiddenPictList();
    void releaseStrip();
    Situation situation() const;
    void refreshScreen();
    void showScreen(const Screen &screen, bool movesFocus);
    void showViews(const Screen &screen);
    void showButtons(const Screen &screen);
    void moveFocus(const Screen &screen);
    void createButton(Button id);
    CStretchBitmapButton *button(Button id) const { return m_buttons[int(id)]; }
    void SignalBlockAll(bool block);
    void focusOn(QWidget *widget);
    const Facts &facts() const;
    QRect viewRect() const { return m_layout.rectOf(Place::Whole); }

    // What happens without being asked for.
    void followFacts();
    void followCamera();
    void reopenCamera();
    void showTakenPicture();

    // Commands.
    void showKeys();
    bool selectVideoDevice();
    bool hasRoom();
    bool refuseOnFullDisk();
    void playShutterSound();
    void showLive();
    bool takePhoto();
    void tellOfFailedPhoto();
    void startSeries();
    void finishSeries();
    void loadRecordedMovie();
    void loadMovie(const QString &path);
    void tellOfMovie(Cause end);
    void tellOfPlayer();
    void showInPictureView(const QString &name, const QString &folder);
    void SetPictureListMode(const QStringList &names);
    void addTile(const QString &name, const QRect &place, int number, bool zoomable);
    void OnCopy();
    void copyToClipboard(const QStringList &paths);
    QStringList shownFiles() const;
    void showMovie();
    void placeTiles();
    // Where listed files are: the list's folder, which is empty for the working folder.
    QString listedFolder() const;
    void finishLoad(bool isComplete);
    void deleteAsAsked();
    void saveAsAsked();
    bool saveCaptures(std::chrono::milliseconds movieLimit);
    void saveNow();
    void closeViews();

    // How soon is looked again whether what keeps something from being done has ended.
    static constexpr std::chrono::milliseconds retryPeriod{50};

    // Views and dialogs; children of this window, as the buttons are.
    LiveVideoWidget *m_liveView = nullptr; // null once the window was closed
    MovieWidget *m_movieView = nullptr;
    PictureWidget *m_pictureView = nullptr;
    TimerWidget *m_timerView = nullptr;
    PictureListView *m_listView = nullptr;
    CWaiteMsgDlg *m_waitDialog = nullptr;
    Setting *m_settingDialog = nullptr;
    ScreenAwake *m_screenAwake = nullptr;
    QVector<PictureWidget *> m_thumbnails; // the grid

    QVector<CStretchBitmapButton *> m_buttons; // by their number
    bool m_isKeyboardUsed = false;             // by the latest press of a button

    Layout m_layout;
    QPoint m_screenCorner;
    Screen m_screen;                     // as it is shown
    QPointer<QWidget> m_focusBeforeWait; // while a long wait keeps everything from being pressed

    // State.
    bool m_isStartable = false;
    DisplayMode m_mode = DisplayMode::Live;
    Variant m_variant = Variant::Usual;
    bool m_isErrorMode = false; // it was told that there is no camera, or no room on the disk
    bool m_isReturning = false; // the camera that was lost is being tried again
    QTimer *m_returnTimer = nullptr;
    QTimer *m_followTimer = nullptr; // runs while facts have changed that wait for something to end
    QTimer *m_closeTimer = nullptr;  // likewise, when leaving was asked for
    QTimer *m_quietTimer = nullptr;  // from one screen to another, and until all is quiet again
    bool m_isMovieShown = false;     // lists and pastes are of movies, not of photos
    bool m_offersPhotos = false;     // the list does, which shows movies
    bool m_showsChoice = false;      // the list has
    bool m_isMovieLoaded = false;
    bool m_isMovieAwaited = false; // the recorded one, until its file is whole
    bool m_isSeriesRunning = false;
    std::function<bool()> m_isLessonShared = [] { return false; };
    bool m_isAsking = false;  // whether to save
    bool m_isLeaving = false; // it is decided
    bool m_isSaving = false;
    int m_shotsTaken = 0;
    QStringList m_seriesList;
    QString m_shownMovie; // full path
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
