#pragma once

#include <QFont>

// The program's letters where they do not depend on the screen: a thin weight throughout.

// Over the pictures.
inline QFont captionFont()
{
    return QFont("Arial", 24, 5);
}

// In the program's own dialogs.
inline QFont dialogFont()
{
    return QFont("Arial", 11, 5);
}
