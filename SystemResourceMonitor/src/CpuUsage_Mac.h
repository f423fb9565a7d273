#ifndef CPUUSAGE_MAC_H
#define CPUUSAGE_MAC_H

#include "ICpuUsage.h"

/// CPU load from the kernel's host statistics.
class CpuUsage_Mac : public ICpuUsage
{
public:
    double getPercentage() override;
};

/// The load of a fresh sample as a fraction, relative to the previous sample of anyone in this
/// process (see CalculateCPULoad()); -1 on failure, which leaves the previous sample in place.
float GetCPULoad();

#endif
