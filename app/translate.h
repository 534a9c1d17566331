#pragma once

// Installs the translation for the whiteboard software's language from the application's folder, for the rest
// of the run, and lays the application out from right to left for Arabic and Hebrew. Without a translation
// file the program speaks its built-in English.
void translate();
