#ifndef CPULOAD_H
#define CPULOAD_H

/// The share of CPU time in use since the previous call: 0 for an idle machine, 1 for a fully
/// loaded one, and 1 when no time has elapsed.
///
/// The ticks of the previous call are shared by the whole process, start at zero and are never
/// reset, so every caller moves the reference of all others. Not locked.
///
/// @param idleTicks  cumulative count of idle ticks
/// @param totalTicks cumulative count of all ticks
float CalculateCPULoad(unsigned long long idleTicks, unsigned long long totalTicks);

#endif
