#ifndef SAMPLERTICK_H
#define SAMPLERTICK_H

#include <functional>

// Ways to sample the CPU ticks and the memory figures of the machine once. A function is empty when
// its library was missing when the program was built.

/// With libgtop2.
std::function<void()> gtopTick();

/// With libproc2.
std::function<void()> proc2Tick();

#endif
