// Copying a folder of earlier captures in.

#include "dialog/pictoreldlg.h"

#include "dialog/foldercopy.h"
#include "dialog/waitemsgdlg.h"
#include "util/files/diskanswer.h"
#include "util/webcamutil.h"

#include <QDir>
#include <QFileDialog>

// Where choosing begins: a folder whose disk does not answer would hold the chooser up.
static QString firstFolder(const QString &wanted)
{
    return askDisk("OnDirLoad", wanted, QDir::homePath(),
                   [wanted] { return QDir(wanted).exists() ? wanted : QDir::homePath(); });
}

void CPictorelDlg::OnDirLoad()
{
    QFileDialog chooser(this, tr("Load Directory"),
                        firstFolder(m_loadFolder.isEmpty() ? m_saveDirectory : m_loadFolder));
    chooser.setFileMode(QFileDialog::Directory);
    chooser.setOptions(QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks |
                       QFileDialog::DontUseNativeDialog | QFileDialog::ReadOnly);
    chooser.setWindowFlags(Qt::Dialog | Qt::WindowSystemMenuHint | Qt::WindowStaysOnTopHint);
    chooser.setModal(true); // before it is shown: exec() comes too late for that
    chooser.show();
    chooser.raise();
    if (chooser.exec() != QDialog::Accepted)
        return;
    m_loadFolder = chooser.selectedFiles().value(0);
    m_waitDialog->show();
}

void CPictorelDlg::dirLoad()
{
    if (m_folderCopy)
        return;
    const auto kind = m_isMovieShown ? FolderCopy::Kind::Movies : FolderCopy::Kind::Photos;
    m_folderCopy = new FolderCopy(kind, m_loadFolder, WebcamUtil::existingTemporaryPath(), this);
    connect(m_folderCopy, &FolderCopy::finished, this, &CPictorelDlg::finishLoad);
    connect(m_waitDialog, &CWaiteMsgDlg::stopRequested, m_folderCopy, &FolderCopy::stop);
}

void CPictorelDlg::finishLoad(bool isComplete)
{
    m_folderCopy->deleteLater();
    m_folderCopy = nullptr;
    OnList();
    emit loadcomp(isComplete);
}
