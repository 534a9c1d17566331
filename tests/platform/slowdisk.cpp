#include "tests/platform/slowdisk.h"

#include <chrono>
#include <thread>

std::atomic<int> syncMilliseconds{0};

extern "C" int fsync(int)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(syncMilliseconds));
    return 0;
}
