#ifndef MEMORYUSAGE_MAC_H
#define MEMORYUSAGE_MAC_H

#include "IMemoryUsage.h"

/// Memory in use from the kernel's page counts.
class MemoryUsage_Mac : public IMemoryUsage
{
public:
    double getPercentage() override;
};

#endif
