#pragma once

#include "util/files/alivewait.h"
#include "util/files/filelog.h"

#include <QString>

#include <chrono>
#include <utility>

// How long the GUI thread waits for a disk's answer to one question.
constexpr std::chrono::seconds diskLimit(2);

bool isGuiThread();

// What the work finds out on the disk. Any thread; on the GUI thread it is done aside, as doAside() does it,
// so it must own all that it uses. When it has not ended by the limit then, silent is the answer, and a line
// names the operation and the path. What the user presses meanwhile comes afterwards.
template<typename Answer, typename Work>
Answer askDisk(const char *operation, const QString &path, Answer silent, Work work)
{
    if (!isGuiThread())
        return work();
    std::optional<Answer> answer = doAside(std::move(work), diskLimit, Input::KeptThroughout);
    if (answer)
        return *std::move(answer);
    noteSilentDisk(operation, path);
    return silent;
}
