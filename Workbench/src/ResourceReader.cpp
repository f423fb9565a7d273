#include "ResourceReader.h"

#include "JsonObject.h"

namespace {

constexpr int MaxPercentage = 100;
constexpr double MaxBandwidth = 1e6;    // Mbit/s
constexpr double UsualBandwidth = 1000; // Mbit/s

NetworkUsage readNetwork(JsonObject &object)
{
    NetworkUsage usage{object.text(QStringLiteral("interface")),
                       object.number(QStringLiteral("percentage"), 0, MaxPercentage),
                       object.number(QStringLiteral("bandwidth"), 0, MaxBandwidth, UsualBandwidth)};
    object.expectNoMore();
    return usage;
}

} // namespace

ResourceReport readResources(JsonObject &object)
{
    ResourceReport report;
    report.cpuPercentage = object.wholeNumber(QStringLiteral("cpu"), 0, MaxPercentage);
    report.memoryPercentage = object.wholeNumber(QStringLiteral("memory"), 0, MaxPercentage);
    for (JsonObject &network : object.objects(QStringLiteral("networks")))
        report.networks.push_back(readNetwork(network));
    return report;
}
