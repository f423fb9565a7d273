#ifndef INETWORKUSAGE_H
#define INETWORKUSAGE_H

#include <QStringList>

/// The usage of one network interface.
struct NetworkInfo
{
    double percentage; ///< usage of the interface in percent
    double bandwidth;  ///< in whatever unit the sampler measures
};

/// Samples the network interfaces. Called on the thread that owns the monitor.
class INetworkUsage
{
public:
    virtual ~INetworkUsage() = default;

    /// The names of the interfaces, in the order in which they are reported.
    virtual QStringList getInterfaceNameList() = 0;

    /// The usage of one interface; zeros for a name that is not known.
    virtual NetworkInfo getNetworkInfo(const QString &interfaceName) = 0;
};

#endif
