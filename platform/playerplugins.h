#pragma once

// Loads the plug-ins of GStreamer that Phonon takes to play a recorded movie, and looks for the sound's
// device once, so that Phonon finds all of it in memory. Takes as long as disk and sound server do; any
// thread. What is not installed is left out.
void loadPlayerPlugins();
