#pragma once

#include <QFileDialog>
#include <QString>

// Has the user choose a folder, beginning in the one given, in a dialog above all windows that fits on the
// screen. Empty when it was left without a choice.
QString chooseFolder(QWidget *parent, const QString &title, const QString &folder,
                     QFileDialog::Options further = {});
