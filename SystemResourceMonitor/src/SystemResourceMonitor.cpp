#include "SystemResourceMonitor.h"

#include "ICpuUsage.h"
#include "IMemoryUsage.h"
#include "INetworkUsage.h"
#include "PlatformSamplers.h"
#include "SystemResourceMonitor_Log.h"

#include <limits>

using SystemResourceMonitorCommon::NetworkUsage;

namespace {

constexpr int SamplingIntervalMs = 1000;

// Takes back what registerSignalTypes() did when the file that holds the types is unloaded: Qt
// would go on reading what it knows of them where it lay.
class RegisteredTypes
{
public:
    // Qt's table of types begins with the first one, and is to end later than this at exit.
    RegisteredTypes() { qRegisterMetaType<NetworkUsage>(); }
    ~RegisteredTypes()
    {
        takeBack(QMetaType::fromType<QList<NetworkUsage>>());
        takeBack(QMetaType::fromType<NetworkUsage>());
        // To which lists are converted.
        takeBack(QMetaType::fromType<QIterable<QMetaSequence>>());
    }

    RegisteredTypes(const RegisteredTypes &) = delete;
    RegisteredTypes &operator=(const RegisteredTypes &) = delete;

private:
    // Only if it was this file that made it known.
    static void takeBack(QMetaType type)
    {
        if (QMetaType(type.id()).iface() == type.iface())
            QMetaType::unregisterMetaType(type);
    }
};

// Makes the types known by name, for queued connections and variants.
void registerSignalTypes()
{
    // Made first, so that it ends last: the list's conversions name its type once more when they
    // go.
    static const RegisteredTypes types;
    qRegisterMetaType<QList<NetworkUsage>>();
}

QList<NetworkUsage> sampleNetwork(INetworkUsage &sampler)
{
    QList<NetworkUsage> usages;
    const QStringList names = sampler.getInterfaceNameList();
    for (const QString &name : names) {
        const NetworkInfo info = sampler.getNetworkInfo(name);
        usages.append({name, info.percentage, info.bandwidth});
    }
    return usages;
}

// Cuts off the fraction. Counters that step back make a percentage that no int holds, and
// converting that is undefined.
int wholePercents(double percentage)
{
    using Limits = std::numeric_limits<int>;
    if (percentage >= Limits::max())
        return Limits::max();
    if (percentage > Limits::min())
        return static_cast<int>(percentage);
    return Limits::min();
}

} // namespace

SystemResourceMonitor::SystemResourceMonitor()
    : SystemResourceMonitor(platformSamplers())
{ }

SystemResourceMonitor::SystemResourceMonitor(const SamplerFactory &samplers)
{
    try {
        registerSignalTypes();
        m_cpuUsage = samplers.createCpuUsage();
        m_memoryUsage = samplers.createMemoryUsage();
        m_networkUsage = samplers.createNetworkUsage();
        startTimer(SamplingIntervalMs, Qt::CoarseTimer);
    } catch (...) {
        if (isTracedSystemResourceMonitor(TraceLog::ErrorLevel))
            LocalTraceOutFuncSystemResourceMonitor("SystemResourceMonitor");
        throw;
    }
}

void SystemResourceMonitor::timerEvent(QTimerEvent *)
{
    const QList<NetworkUsage> networkUsages = sampleNetwork(*m_networkUsage);
    const int cpuPercentage = wholePercents(m_cpuUsage->getPercentage());
    const int memoryPercentage = wholePercents(m_memoryUsage->getPercentage());
    Q_EMIT resourceChanged(cpuPercentage, memoryPercentage, networkUsages);
}
