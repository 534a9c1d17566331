#pragma once

// What the allocator keeps of memory that was freed. A movie and a photo are large, short-lived and made by
// many threads; left to itself, the allocator gives each of these threads a heap of its own, and every heap
// keeps what its busiest moment took.

// From now on all threads share two heaps: to be called before there is a second thread.
void useFewHeaps();

// Gives back to the system what is free in the heaps; they stand still for some milliseconds. Any thread.
void giveBackFreedMemory();
