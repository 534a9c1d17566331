#pragma once

#include <atomic>
#include <chrono>
#include <thread>

#include <sys/syscall.h>
#include <unistd.h>

// While one lives, waiting for the disk takes this much longer. Included once in a program, whose own fsync
// then stands before the system's for all libraries.
class SlowDisk
{
public:
    explicit SlowDisk(std::chrono::milliseconds delay) { s_delay = delay; }
    ~SlowDisk() { s_delay = std::chrono::milliseconds::zero(); }

    static int sync(int file)
    {
        std::this_thread::sleep_for(s_delay.load());
        return int(syscall(SYS_fsync, file));
    }

private:
    static inline std::atomic<std::chrono::milliseconds> s_delay{std::chrono::milliseconds::zero()};
};

extern "C" __attribute__((visibility("default"))) int fsync(int file)
{
    return SlowDisk::sync(file);
}
