#include "util/desktop/folderchooser.h"

#include "util/desktop/centring.h"
#include "util/files/diskanswer.h"

#include <QDir>

// Where choosing begins: a folder whose disk does not answer would hold the chooser up.
static QString firstFolder(const QString &wanted)
{
    return askDisk("chooseFolder", wanted, QDir::homePath(),
                   [wanted] { return QDir(wanted).exists() ? wanted : QDir::homePath(); });
}

// Names alone, and no kind to choose: there are only folders, and their names are days.
static void keepSimple(QFileDialog &chooser)
{
    chooser.setViewMode(QFileDialog::List);
    for (const char *name : {"listModeButton", "detailModeButton", "fileTypeLabel", "fileTypeCombo"}) {
        if (auto *widget = chooser.findChild<QWidget *>(name))
            widget->hide();
    }
}

QString chooseFolder(QWidget *parent, const QString &title, const QString &folder,
                     QFileDialog::Options further)
{
    QFileDialog chooser(parent, title, firstFolder(folder));
    chooser.setFileMode(QFileDialog::Directory);
    chooser.setOptions(QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks |
                       QFileDialog::DontUseNativeDialog | further);
    keepSimple(chooser);
    chooser.setWindowFlags(Qt::Dialog | Qt::WindowSystemMenuHint | Qt::WindowStaysOnTopHint);
    chooser.setModal(true); // before it is shown: exec() comes too late for that
    fitOnScreen(&chooser);
    chooser.show();
    chooser.raise();
    if (chooser.exec() != QDialog::Accepted)
        return {};
    return chooser.selectedFiles().value(0);
}
