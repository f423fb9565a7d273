#include "ResourceReport.h"

#include "ServerNames.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr double Amplitude = 2.0;
constexpr double PeriodSeconds = 23.0;

double lively(double level, std::size_t phase, qint64 second)
{
    // Two waves whose periods have no short common multiple look unlike a machine's rhythm.
    const double turn = 2.0 * M_PI * static_cast<double>(second) / PeriodSeconds;
    const auto offset = static_cast<double>(phase % 360);
    const double wave = 0.6 * std::sin(turn + offset) + 0.4 * std::sin(turn * M_E + 2.0 * offset);
    return std::clamp(level + Amplitude * wave, 0.0, 100.0);
}

} // namespace

QVariantMap toEventData(const ResourceReport &report)
{
    QVariantList networks;
    for (const NetworkUsage &usage : report.networks) {
        networks.append(QVariantMap{{ServerNames::KeyNetworkInterface, usage.interfaceName},
                                    {ServerNames::KeyNetworkPercentage, usage.percentage},
                                    {ServerNames::KeyNetworkBandwidth, usage.bandwidth}});
    }
    return {{ServerNames::KeyCpuPercentage, report.cpuPercentage},
            {ServerNames::KeyMemPercentage, report.memoryPercentage},
            {ServerNames::KeyNetworkUsageList, networks}};
}

ResourceReport livelyReport(const ResourceReport &level, std::size_t seed, qint64 second)
{
    ResourceReport report = level;
    report.cpuPercentage = qRound(lively(level.cpuPercentage, seed, second));
    report.memoryPercentage = qRound(lively(level.memoryPercentage, seed + 1, second));
    for (NetworkUsage &usage : report.networks)
        usage.percentage = lively(usage.percentage, ++seed + 1, second);
    return report;
}
