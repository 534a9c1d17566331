#pragma once

// Makes the program's sizes, which are pixels of a screen with 96 of them an inch, follow the scale that the
// user has chosen for the desktop, as far as there is room for the dialogs; pictures are shown in the
// screen's own pixels all the same. To be called before the application object is made.
void followScreenScale();
