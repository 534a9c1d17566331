#pragma once

#include <QString>

// Whether the search path has a command of this name, which goes to the shell as it is. A command whose whole
// path is longer than 30 characters is not found. Blocks until the look-up has ended.
bool canLaunch(const QString &name);

// The first sound player that can be launched, "play" or "aplay"; empty when there is none.
QString findSoundPlayer();
