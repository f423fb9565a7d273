#ifndef CPUUSAGE_LINUX_H
#define CPUUSAGE_LINUX_H

#include "ICpuUsage.h"

#include <QString>

/// CPU load from the aggregate line of /proc/stat. Waiting for input and output counts as idle.
class CpuUsage_Linux : public ICpuUsage
{
public:
    /// @param procRoot where the proc file system is mounted
    explicit CpuUsage_Linux(const QString &procRoot = QStringLiteral("/proc"));

    double getPercentage() override;

private:
    QString m_procRoot;
};

/// The load of a fresh sample as a fraction, relative to the previous sample of anyone in this
/// process (see CalculateCPULoad()); -1 on failure, which leaves the previous sample in place.
///
/// @param procRoot where the proc file system is mounted
float GetCPULoad(const QString &procRoot = QStringLiteral("/proc"));

#endif
