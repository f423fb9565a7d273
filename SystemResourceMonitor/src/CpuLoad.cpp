#include "CpuLoad.h"

static unsigned long long _previousTotalTicks = 0;
static unsigned long long _previousIdleTicks = 0;

float CalculateCPULoad(unsigned long long idleTicks, unsigned long long totalTicks)
{
    // The differences are right across a wrap of the counters.
    const unsigned long long totalDelta = totalTicks - _previousTotalTicks;
    const unsigned long long idleDelta = idleTicks - _previousIdleTicks;
    _previousTotalTicks = totalTicks;
    _previousIdleTicks = idleTicks;
    if (totalDelta == 0)
        return 1.0F;
    return 1.0F - static_cast<float>(idleDelta) / static_cast<float>(totalDelta);
}
