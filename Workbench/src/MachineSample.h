#ifndef MACHINESAMPLE_H
#define MACHINESAMPLE_H

#include <optional>

/// What the plug-in tells of this machine's load, in percent. It gives a figure that could not be
/// sampled as a number all the same: a negative one of the CPU, and less than 1 of the memory,
/// which no running machine has.
namespace MachineSample {

inline std::optional<int> knownCpu(int cpu)
{
    return cpu < 0 ? std::nullopt : std::optional(cpu);
}

inline std::optional<int> knownMemory(int memory)
{
    return memory < 1 ? std::nullopt : std::optional(memory);
}

} // namespace MachineSample

#endif
