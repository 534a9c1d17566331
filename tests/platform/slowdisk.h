#pragma once

#include <atomic>

// How long the disk takes to have what was written, whatever the real one takes. Linked into a test, it
// stands before the C library's fsync.
extern std::atomic<int> syncMilliseconds;
