#ifndef RESOURCEREPORT_H
#define RESOURCEREPORT_H

#include <QString>
#include <QVariantMap>

#include <vector>

/// The load of one network interface.
struct NetworkUsage
{
    QString interfaceName;
    double percentage = 0.0; ///< of the bandwidth, 0 to 100
    double bandwidth = 0.0;  ///< Mbit/s
};

/// The load of a station at one moment.
struct ResourceReport
{
    int cpuPercentage = 0;    ///< 0 to 100
    int memoryPercentage = 0; ///< 0 to 100
    std::vector<NetworkUsage> networks;
};

/// The report as it travels in the event "SystemResChanged".
QVariantMap toEventData(const ResourceReport &report);

/// The report as a station at work would make it: each figure moves slowly by at most two points
/// around its level and stays between 0 and 100. The same arguments give the same report.
///
/// @param seed   tells stations apart, so that they do not move in step
/// @param second counts the reports
ResourceReport livelyReport(const ResourceReport &level, std::size_t seed, qint64 second);

#endif
