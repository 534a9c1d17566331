#pragma once

#include <QDialog>

class QPushButton;

// Asks, when the user leaves, whether the captures are to be saved. exec() gives Accepted (1) for Yes,
// Rejected (0) for Cancel and for any other way of closing it, and discard for No.
class SaveConfirmDlg : public QDialog
{
    Q_OBJECT

public:
    static constexpr int discard = -1;

    explicit SaveConfirmDlg(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());

    // The top-left corner at which the dialog, as big as it was when it was built, would stand in the middle
    // of the screen. It is placed over its parent instead, each time it is shown.
    int centerX() const { return m_centerX; }
    int centerY() const { return m_centerY; }

public slots:
    void savecancel();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void setUpLocalButton();
    void setUpLocalLayout();

    QPushButton *m_yes = nullptr;
    QPushButton *m_no = nullptr;
    QPushButton *m_cancel = nullptr;
    int m_centerX = 0;
    int m_centerY = 0;
};
