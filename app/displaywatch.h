#pragma once

#include "util/files/descriptor.h"

#include <thread>

// Ends the program at once when its X server dies, while it lives. Left to themselves, Qt, Xlib and the
// player all end the program then, each from its own thread, and wait for each other for ever. What was taken
// stays in the working folder. Make it after the application, and let it go before.
class DisplayWatch
{
public:
    DisplayWatch();
    ~DisplayWatch();
    DisplayWatch(const DisplayWatch &) = delete;
    DisplayWatch &operator=(const DisplayWatch &) = delete;

private:
    Descriptor m_stop; // written to when it is enough
    std::thread m_thread;
};
