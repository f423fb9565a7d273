#ifndef SAMPLERTICK_H
#define SAMPLERTICK_H

#include <functional>

// Ways to sample the CPU ticks and the memory figures of the machine once. A function is empty when
// its library was missing when the program was built, or its files on this system.

/// Only reads the two files that the kernel writes afresh for every read: the least that anyone has
/// to do who wants the figures.
std::function<void()> readingTick();

/// With libgtop2.
std::function<void()> gtopTick();

/// With libproc2.
std::function<void()> proc2Tick();

#endif
