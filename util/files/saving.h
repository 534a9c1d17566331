#pragma once

#include <QString>
#include <QStringList>

#include <functional>

// Moves captures, given by their bare names, oldest first, from the working folder into the save folder,
// newest first, a movie and its preview together or not at all. A file that is there already under the same
// name is kept and the working copy removed. False at the first failure: what was moved until then stays
// moved, the rest stays where it was, and nothing half written is left anywhere. Takes as long as the disks
// do; any thread. giveSign is called again and again for as long as it goes on.
bool moveCaptures(const QStringList &captures, const QString &working, const QString &save,
                  const std::function<void()> &giveSign);
