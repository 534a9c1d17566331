#pragma once

#include <QDialog>
#include <QStringList>
#include <QVector>

class QComboBox;

// Asks which of several cameras to use; the maker's own document cameras come first. Accepted means that one
// was chosen; leaving in any other way is rejection.
class SelectDeviceDlg : public QDialog
{
    Q_OBJECT

public:
    explicit SelectDeviceDlg(QWidget *parent = nullptr);

    // Adds the devices and makes the first row current. The place of a name in the list is what
    // getVideoDevice() answers for it.
    void setVideoDeviceList(const QStringList &names);

    // The chosen device's place in the list that was given; -1 when none was.
    int getVideoDevice() const;
    QString getVideoDeviceName() const;

private:
    QComboBox *m_devices;
    QVector<int> m_indexOfRow;
};
