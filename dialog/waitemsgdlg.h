#pragma once

#include <QDialog>

class QProgressBar;
class QPushButton;
class QTimer;
class SpokenLabel;

// Tells the user to wait while something long is done, and then how it ended. Showing it starts the work:
// OnShow() comes once, a moment after each showing, when the dialog is surely on screen. Until comp() it
// stays, and the Escape key only asks the work to stop.
class CWaiteMsgDlg : public QDialog
{
    Q_OBJECT

public:
    explicit CWaiteMsgDlg(QWidget *parent = nullptr);

    // What is being waited for, in full sentences: screen readers read them beside the short texts shown.
    void setLoadingTexts(const QString &wait, const QString &complete, const QString &failed);

    // The texts shown, translated.
    QString getWaitemsg() const;
    QString getCompletemsg() const;
    QString getFailedmsg() const;

signals:
    void OnShow();
    void stopRequested();

public slots:
    // The work has ended, well or not; the user may close the dialog now.
    void comp(bool ok);

    void reject() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void start();
    void showText(const QString &text, const QString &description);

    QString m_wait;
    QString m_complete;
    QString m_failed;
    QPushButton *m_ok;
    SpokenLabel *m_text;
    QProgressBar *m_work; // shown until the end
    QTimer *m_starter;
    bool m_isStopWished = false; // before the work has started
};
