#pragma once

// From now on what GStreamer's elements tell in a player of Phonon's goes away once it was told. Phonon's
// back end hears it on the spot and leaves it on the bus, where each message keeps the element that it is
// from: all that was ever played, with open files and sockets, would stay for as long as the program runs.
// Any thread, once; works with Qt's event loop of GLib.
void takeMessagesOffPlayers();
