#include "util/desktop/heap.h"

#include <malloc.h>

void useFewHeaps()
{
    // With one, the threads of encoder and decoder would wait for each other.
    constexpr int heaps = 2;
    mallopt(M_ARENA_MAX, heaps);
}

void giveBackFreedMemory()
{
    malloc_trim(0);
}
