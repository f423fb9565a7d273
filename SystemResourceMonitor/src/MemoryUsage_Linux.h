#ifndef MEMORYUSAGE_LINUX_H
#define MEMORYUSAGE_LINUX_H

#include "IMemoryUsage.h"

#include <QString>

/// Memory in use from /proc/meminfo: what applications hold, what the kernel holds without being
/// able to give it back, and what is kept compressed. Caches do not count.
class MemoryUsage_Linux : public IMemoryUsage
{
public:
    /// @param procRoot where the proc file system is mounted
    explicit MemoryUsage_Linux(const QString &procRoot = QStringLiteral("/proc"));

    double getPercentage() override;

private:
    QString m_procRoot;
};

#endif
