#ifndef ISYSTEMRESOURCEMONITOR_H
#define ISYSTEMRESOURCEMONITOR_H

#include "SystemResourceMonitorCommon.h"

#include <QList>
#include <QObject>

/// Announces the resource usage of a machine.
class ISystemResourceMonitor : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    /// A sample was taken. Goes out for every sample, whether or not a value moved.
    ///
    /// @param cpuPercentage    CPU load in whole percents; -100 when it could not be measured
    /// @param memoryPercentage memory in use in whole percents; 0 when it could not be measured
    /// @param networkUsageList one entry per network interface
    void resourceChanged(int cpuPercentage, int memoryPercentage,
                         QList<SystemResourceMonitorCommon::NetworkUsage> networkUsageList);
};

#endif
