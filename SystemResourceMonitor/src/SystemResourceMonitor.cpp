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

// Makes the types known by name, for queued connections and variants.
void registerSignalTypes()
{
    qRegisterMetaType<NetworkUsage>();
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
