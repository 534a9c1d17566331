// Copying a folder of earlier captures in.

#include "dialog/pictoreldlg.h"

#include "dialog/foldercopy.h"
#include "dialog/waitemsgdlg.h"
#include "util/desktop/folderchooser.h"
#include "util/webcamutil.h"

void CPictorelDlg::OnDirLoad()
{
    const QString chosen =
        chooseFolder(this, tr("Load Directory"), m_loadFolder.isEmpty() ? m_saveDirectory : m_loadFolder,
                     QFileDialog::ReadOnly);
    if (chosen.isEmpty())
        return;
    m_loadFolder = chosen;
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
