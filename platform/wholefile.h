#pragma once

#include <QString>

#include <string_view>
#include <vector>

// Writes a file that appears whole or not at all: its bytes go into a hidden neighbour first, which then
// takes the name, replacing what had it. False when that fails, for example on a full disk; nothing is
// left then. A process killed meanwhile leaves at most the hidden file.
bool writeWholeFile(const QString &path, const std::vector<std::string_view> &parts);
