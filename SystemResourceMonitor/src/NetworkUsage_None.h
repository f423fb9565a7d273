#ifndef NETWORKUSAGE_NONE_H
#define NETWORKUSAGE_NONE_H

#include "INetworkUsage.h"

/// Stands in where network usage is not measured: there are no interfaces.
class NetworkUsage_None : public INetworkUsage
{
public:
    QStringList getInterfaceNameList() override;
    NetworkInfo getNetworkInfo(const QString &interfaceName) override;
};

#endif
