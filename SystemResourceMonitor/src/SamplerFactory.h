#ifndef SAMPLERFACTORY_H
#define SAMPLERFACTORY_H

#include <QSharedPointer>

#include <functional>

class ICpuUsage;
class IMemoryUsage;
class INetworkUsage;

/// How a monitor gets its samplers. Every function is called once, in this order, and returns an
/// object; it reports a failure by an exception.
struct SamplerFactory
{
    std::function<QSharedPointer<ICpuUsage>()> createCpuUsage;
    std::function<QSharedPointer<IMemoryUsage>()> createMemoryUsage;
    std::function<QSharedPointer<INetworkUsage>()> createNetworkUsage;
};

#endif
