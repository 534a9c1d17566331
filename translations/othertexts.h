#pragma once

#include <QtGlobal>

// What the program itself does not ask for, for lupdate to find; nothing includes this file.

// The menu entry's: the build takes them from the catalogues.
QT_TRANSLATE_NOOP("MenuEntry", "Document Camera")
QT_TRANSLATE_NOOP("MenuEntry", "Show, photograph and film what lies under the camera")

// The folder chooser's, which is Qt's: Qt knows fewer languages than the program does.
QT_TRANSLATE_NOOP("QFileDialog", "Look in:")
QT_TRANSLATE_NOOP("QFileDialog", "Directory:")
QT_TRANSLATE_NOOP("QFileDialog", "&Choose")
QT_TRANSLATE_NOOP("QFileDialog", "Back")
QT_TRANSLATE_NOOP("QFileDialog", "Forward")
QT_TRANSLATE_NOOP("QFileDialog", "Parent Directory")
QT_TRANSLATE_NOOP("QFileDialog", "Create New Folder")
QT_TRANSLATE_NOOP("QFileDialog",
                  "%1\nDirectory not found.\nPlease verify the correct directory name was given.")
QT_TRANSLATE_NOOP("QFileSystemModel", "Computer")
QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel")
QT_TRANSLATE_NOOP("QPlatformTheme", "OK")
