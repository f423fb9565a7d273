#include "ReportMaker.h"

QVariant makeReport(const Usage &usage)
{
    QVariantList network;
    for (const double percentage : usage.network) {
        network.append(QVariantMap{
            {QStringLiteral("networkInterface"), QStringLiteral("eth%1").arg(network.size())},
            {QStringLiteral("networkPercentage"), percentage},
            {QStringLiteral("networkBandwidth"), percentage * 1e7},
        });
    }
    return QVariantMap{
        {QStringLiteral("cpuPercentage"), usage.cpu},
        {QStringLiteral("memPercentage"), usage.memory},
        {QStringLiteral("networkUsageList"), network},
    };
}
