#include "dialog/saveconfirmdlg.h"

#include "util/desktop/fonts.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

SaveConfirmDlg::SaveConfirmDlg(QWidget *parent, Qt::WindowFlags flags) : QDialog(parent, flags)
{
    setResult(discard);
    setWindowTitle(tr("Orvane"));
    setWindowIcon(QIcon(":/res/Pictorel.png"));
    // No close button: the question wants one of its three answers.
    const Qt::WindowFlags replaced = Qt::CustomizeWindowHint | Qt::WindowCloseButtonHint |
                                     Qt::WindowContextHelpButtonHint | Qt::WindowStaysOnTopHint;
    setWindowFlags((windowFlags() & ~replaced) | Qt::CustomizeWindowHint | Qt::WindowStaysOnTopHint);

    setUpLocalButton();
    setUpLocalLayout();

    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    m_centerX = screen.width() / 2 - width() / 2;
    m_centerY = screen.height() / 2 - height() / 2;
    adjustSize();
    setFixedSize(size());
}

void SaveConfirmDlg::setUpLocalButton()
{
    m_yes = new QPushButton(tr("Yes"));
    m_no = new QPushButton(tr("No"));
    m_cancel = new QPushButton(tr("Cancel"));
    for (QPushButton *button : {m_yes, m_no, m_cancel})
        button->setFont(dialogFont());
    connect(m_yes, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_no, &QPushButton::clicked, this, &SaveConfirmDlg::savecancel);
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void SaveConfirmDlg::setUpLocalLayout()
{
    auto *question = new QLabel(tr("Do you want to save the Photo / Movie data?"));
    question->setFont(dialogFont());

    auto *questionRow = new QHBoxLayout;
    questionRow->addWidget(question);
    auto *buttonRow = new QHBoxLayout;
    buttonRow->addWidget(m_yes);
    buttonRow->addWidget(m_no);
    buttonRow->addWidget(m_cancel);

    auto *rows = new QVBoxLayout(this);
    rows->addLayout(questionRow);
    rows->addLayout(buttonRow);
}

void SaveConfirmDlg::savecancel()
{
    done(discard);
}

void SaveConfirmDlg::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    adjustPosition(parentWidget());
}
