#include "PlatformSamplers.h"

#include "CpuUsage_Mac.h"
#include "MemoryUsage_Mac.h"
#include "NetworkUsage_None.h"

SamplerFactory platformSamplers()
{
    return {
        [] { return QSharedPointer<CpuUsage_Mac>::create(); },
        [] { return QSharedPointer<MemoryUsage_Mac>::create(); },
        [] { return QSharedPointer<NetworkUsage_None>::create(); },
    };
}
