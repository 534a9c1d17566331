#pragma once

class QThreadPool;

// A few threads for work that may have to wait for a disk or a server; first used on the GUI thread. The end
// of the program waits for them a moment only, so that one which hangs keeps nobody from leaving.
QThreadPool *backgroundPool();
