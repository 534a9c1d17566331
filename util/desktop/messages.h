#pragma once

#include <QMessageBox>
#include <QString>

// Modal boxes titled with the program's name in the middle of the desktop, over parent (may be null). They
// return when the user has answered.

void showMessage(QMessageBox::Icon icon, const QString &text, QWidget *parent);

// A warning that keeps itself above every other window.
void showWarningOnTop(const QString &text, QWidget *parent);
