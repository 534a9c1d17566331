#pragma once

// Gives the program's dialogs the look of its buttons, in sizes that a finger hits, where the desktop brings
// no style of its own. To be called once, after the application object was made.
void applyLook();
