#pragma once

#include <QDialog>
#include <QStringList>

#include <memory>

class QComboBox;
class Ui_Setting;

// Selects the item with exactly this text; none when there is no such item.
void setCurrentIndex(QComboBox *combo, const QString &text);

// The settings dialog, which is also the store of the settings: it reads the settings file when it is built
// and each time it is shown, and answers with what its widgets show. It never writes by itself: after it was
// accepted the owner calls SaveFile().
class Setting : public QDialog
{
    Q_OBJECT

public:
    explicit Setting(QWidget *parent = nullptr);
    ~Setting() override;

    // The store.
    void setDefaultValue(); // the choices
    void setCmbValue();     // the choices into the combo boxes
    void readFile();        // a refused value leaves the one before
    void setParam();        // what was read into the widgets
    void SaveFile();        // what the widgets show, kept and written; failure is not told

    // Replaces the choices of resolution by the camera's; an empty list changes nothing.
    void setResolutionList(const QStringList &list);

    bool getAutoShooting() const;
    int getAutoShootingTime() const;   // seconds
    int getContinuousShooting() const; // photos in a series; -1 when nothing is chosen
    bool getPhotoPreview() const;
    QString getResolution() const; // as "640x480"
    QString getSaveDirectory() const;

    // The dialog.
    void setCaptions();

    // Enables or disables the button for choosing a folder; from then on choosing where to save leaves it
    // alone.
    void setBtnSaveEnable(bool enable);
    void setCmbResoEnable(bool enable);

public slots:
    void OnOk();
    void setSaveDirectory();
    void onDefault();
    void onCustom();
    void AutoCheck();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void setAccessibleNames();
    void connectWidgets();
    void showSaveDirectoryChoice();
    void selectResolution(int otherwise);

    std::unique_ptr<Ui_Setting> m_ui;

    // The values last read or written.
    int m_continuousCount = 4;
    int m_autoShoot = 1;
    int m_autoShootTime = 5;
    int m_photoPreview = 1;
    QString m_resolution;
    QString m_saveDirectory; // empty is the default directory

    QStringList m_autoShootTimeList;
    QStringList m_continuousCountList;
    QStringList m_resolutionList;
    QString m_defaultDirectory;
    bool m_browseAllowed = true;
};
