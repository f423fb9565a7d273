#include "NetworkUsage_None.h"

QStringList NetworkUsage_None::getInterfaceNameList()
{
    return {};
}

NetworkInfo NetworkUsage_None::getNetworkInfo(const QString &)
{
    return {0.0, 0.0};
}
