#ifndef SYSTEMRESOURCEMONITORCOMMON_H
#define SYSTEMRESOURCEMONITORCOMMON_H

#include <QList>
#include <QMetaType>
#include <QString>

namespace SystemResourceMonitorCommon {

/// The usage of one network interface, as it travels in ISystemResourceMonitor::resourceChanged.
struct NetworkUsage
{
    QString interfaceName; ///< as the network sampler lists it
    double percentage;     ///< usage of the interface in percent
    double bandwidth;      ///< in whatever unit the network sampler measures
};

/// Makes NetworkUsage and its list known to the meta-type system by name, for queued connections
/// and variants. May be called any number of times, on any thread.
inline void registerMetaTypes()
{
    qRegisterMetaType<NetworkUsage>();
    qRegisterMetaType<QList<NetworkUsage>>();
}

} // namespace SystemResourceMonitorCommon

Q_DECLARE_METATYPE(SystemResourceMonitorCommon::NetworkUsage)

#endif
