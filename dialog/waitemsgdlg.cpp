#include "dialog/waitemsgdlg.h"

#include "util/desktop/fonts.h"
#include "util/desktop/spokenlabel.h"

#include <QIcon>
#include <QProgressBar>
#include <QPushButton>
#include <QShowEvent>
#include <QTimer>
#include <QVBoxLayout>

namespace
{
// Long enough for the dialog to be painted before the work begins.
constexpr int startDelayMilliseconds = 100;
} // namespace

CWaiteMsgDlg::CWaiteMsgDlg(QWidget *parent)
    : QDialog(parent), m_ok(new QPushButton(tr("OK"))), m_text(new SpokenLabel), m_work(new QProgressBar),
      m_starter(new QTimer(this))
{
    setAutoFillBackground(true);
    setWindowTitle(tr("Orvane"));
    setWindowIcon(QIcon(":res/Pictorel.png"));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowStaysOnTopHint);
    setModal(true);

    m_text->setText(tr("Pasting is processed. Please wait... \n"));
    m_ok->setFont(dialogFont());
    m_text->setFont(dialogFont());
    connect(m_ok, &QPushButton::clicked, this, &QWidget::close);
    m_starter->setSingleShot(true);
    m_starter->setInterval(startDelayMilliseconds);
    connect(m_starter, &QTimer::timeout, this, &CWaiteMsgDlg::start);

    m_work->setRange(0, 0); // moves for as long as the program is alive
    m_work->setTextVisible(false);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addWidget(m_work);
    layout->addWidget(m_ok);
    adjustSize();
}

void CWaiteMsgDlg::setLoadingTexts(const QString &wait, const QString &complete, const QString &failed)
{
    m_wait = wait;
    m_complete = complete;
    m_failed = failed;
}

QString CWaiteMsgDlg::getWaitemsg() const
{
    return tr("Please Waite..");
}

QString CWaiteMsgDlg::getCompletemsg() const
{
    return tr("Complete");
}

QString CWaiteMsgDlg::getFailedmsg() const
{
    return tr("Failed.");
}

void CWaiteMsgDlg::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (event->spontaneous()) // only brought back, by the window manager: the work runs or is done
        return;
    showText(getWaitemsg(), m_wait);
    adjustPosition(parentWidget());
    m_ok->hide();
    m_work->show();
    m_isStopWished = false;
    m_starter->start();
}

void CWaiteMsgDlg::start()
{
    emit OnShow();
    if (m_isStopWished)
        emit stopRequested();
}

void CWaiteMsgDlg::comp(bool ok)
{
    m_work->hide();
    m_ok->show();
    if (ok)
        showText(getCompletemsg(), m_complete);
    else
        showText(getFailedmsg(), m_failed);
    m_ok->setFocus();
}

void CWaiteMsgDlg::showText(const QString &text, const QString &description)
{
    m_text->setText(text);
    m_text->announce(description);
    m_text->adjustSize();
    adjustSize();
}

// Escape and the window manager must not take the dialog away while the work still runs.
void CWaiteMsgDlg::reject()
{
    if (!m_ok->isHidden())
        QDialog::reject();
    else if (m_starter->isActive())
        m_isStopWished = true; // nobody would hear it yet
    else
        emit stopRequested();
}
