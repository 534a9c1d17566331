#pragma once

// Installs the translation for the whiteboard software's language from the application's folder, for the rest
// of the run, and lays the application out from right to left for a language that is read so. Qt's own texts
// follow where Qt has the language. Without a translation file the program speaks its built-in English.
void translate();
