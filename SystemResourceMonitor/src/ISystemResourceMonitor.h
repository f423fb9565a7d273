#pragma once
#include <QObject>
#include <QList>
namespace SystemResourceMonitorCommon { struct NetworkUsage { QString interfaceName; double percentage=0; double bandwidth=0; }; }
class ISystemResourceMonitor : public QObject { Q_OBJECT
Q_SIGNALS: void resourceChanged(int cpuPercentage, int memoryPercentage, QList<SystemResourceMonitorCommon::NetworkUsage> networkUsageList); };
