// Copying a folder of earlier captures in.

#include "dialog/pictoreldlg.h"

#include "dialog/foldercopy.h"
#include "dialog/waitemsgdlg.h"
#include "util/webcamutil.h"

#include <QFileDialog>

void CPictorelDlg::OnDirLoad()
{
    QFileDialog chooser(this, tr("Load Directory"), m_loadFolder.isEmpty() ? m_saveDirectory : m_loadFolder);
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
    const QStringList names = m_isMovieShown ? WebcamUtil::getLoadMovieFile(m_loadFolder)
                                             : WebcamUtil::getFileListFromDir(m_loadFolder, {"photo*"});
    m_folderCopy = new FolderCopy(names, m_loadFolder, WebcamUtil::getTemporaryPath(), this);
    connect(m_folderCopy, &QThread::finished, this, &CPictorelDlg::finishLoad);
    m_folderCopy->start();
}

void CPictorelDlg::finishLoad()
{
    const QFileInfo folder(m_loadFolder);
    const bool isComplete = m_folderCopy->isComplete() && folder.isDir() && folder.isReadable();
    delete m_folderCopy;
    m_folderCopy = nullptr;
    // The list of movies goes on offering the photos.
    if (m_isMovieShown)
        m_mode = DisplayMode::Movie;
    OnList();
    emit loadcomp(isComplete);
}
