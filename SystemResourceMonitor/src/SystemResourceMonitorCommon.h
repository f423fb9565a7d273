#ifndef SYSTEMRESOURCEMONITORCOMMON_H
#define SYSTEMRESOURCEMONITORCOMMON_H

#include <QMetaType>
#include <QString>

namespace SystemResourceMonitorCommon {

/// The usage of one network interface, as it travels in ISystemResourceMonitor::resourceChanged.
struct NetworkUsage
{
    QString interfaceName; ///< as the network sampler lists it
    double percentage = 0; ///< usage of the interface in percent
    double bandwidth = 0;  ///< in whatever unit the network sampler measures
};

} // namespace SystemResourceMonitorCommon

Q_DECLARE_METATYPE(SystemResourceMonitorCommon::NetworkUsage)

#endif
