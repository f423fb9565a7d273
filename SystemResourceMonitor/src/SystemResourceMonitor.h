#ifndef SYSTEMRESOURCEMONITOR_H
#define SYSTEMRESOURCEMONITOR_H

#include "ISystemResourceMonitor.h"
#include "SamplerFactory.h"

/// Samples the machine that it runs on once a second, from its construction to its destruction.
///
/// Needs an event loop on the thread that owns it, where the samplers are called and the signal
/// is emitted.
class SystemResourceMonitor : public ISystemResourceMonitor
{
    Q_OBJECT

public:
    /// Samples with the samplers of this system.
    SystemResourceMonitor();

    /// Samples with other samplers, which are shared. What @p samplers throws is traced and passed
    /// on.
    explicit SystemResourceMonitor(const SamplerFactory &samplers);

protected:
    /// Takes a sample, whichever timer of this object ran out.
    void timerEvent(QTimerEvent *event) override;

private:
    QSharedPointer<ICpuUsage> m_cpuUsage;
    QSharedPointer<IMemoryUsage> m_memoryUsage;
    QSharedPointer<INetworkUsage> m_networkUsage;
};

#endif
