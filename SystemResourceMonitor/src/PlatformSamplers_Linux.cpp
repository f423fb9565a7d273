#include "PlatformSamplers.h"

#include "CpuUsage_Linux.h"
#include "MemoryUsage_Linux.h"
#include "NetworkUsage_None.h"

SamplerFactory platformSamplers()
{
    return {
        [] { return QSharedPointer<CpuUsage_Linux>::create(); },
        [] { return QSharedPointer<MemoryUsage_Linux>::create(); },
        [] { return QSharedPointer<NetworkUsage_None>::create(); },
    };
}
