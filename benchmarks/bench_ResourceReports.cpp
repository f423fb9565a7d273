#include "BareErrorList.h"
#include "ModelRoles.h"
#include "ReportMaker.h"
#include "Scenario.h"
#include "SilentHost.h"
#include "Site.h"
#include "StopWatch.h"
#include "Verify.h"

#include <algorithm>
#include <random>

namespace {

constexpr int ReportsPerStation = 10;
// One report in so many has one value above its threshold, until the station's next report.
constexpr int HighInterval = 20;

struct Report
{
    QString stationID;
    QVariant data;
    bool isHigh;
};

Usage calmUsage(int number)
{
    const double network = number % 40;
    return {
        10 + number % 50, 20 + number % 60, {network, network + 0.25, network + 0.5, network + 1}};
}

QVariant calmReport(int number)
{
    static const QVariantList reports = [] {
        QVariantList made;
        for (int i = 0; i < 64; ++i)
            made.append(makeReport(calmUsage(i)));
        return made;
    }();
    return reports.at(number % reports.size());
}

QVariant highReport(int number)
{
    static const QVariantList reports = [] {
        Usage highCpu = calmUsage(0);
        highCpu.cpu = 95;
        Usage highMemory = calmUsage(0);
        highMemory.memory = 95;
        QVariantList made{makeReport(highCpu), makeReport(highMemory)};
        for (std::size_t i = 0; i < Usage::Interfaces; ++i) {
            Usage highNetwork = calmUsage(0);
            highNetwork.network.at(i) = 75;
            made.append(makeReport(highNetwork));
        }
        return made;
    }();
    return reports.at(number % reports.size());
}

// Every station reports in turn, ten times over.
QList<Report> makeReports(const Site &site, int count)
{
    std::mt19937 random(1);
    std::uniform_int_distribution<int> numbers;
    QList<Report> reports;
    for (int i = 0; i < count; ++i) {
        const Site::Station &station = site.stations().at(i % site.stations().size());
        const bool isHigh = numbers(random) % HighInterval == 0;
        const QVariant data = isHigh ? highReport(numbers(random)) : calmReport(i);
        reports.append({station.id, data, isHigh});
    }
    return reports;
}

// The errors that are listed in the end, one for each station whose last report was high.
qsizetype remainingErrors(const Site &site, const QList<Report> &reports)
{
    return std::count_if(reports.cend() - site.stations().size(), reports.cend(),
                         [](const Report &sent) { return sent.isHigh; });
}

double report(const Setting &setting)
{
    const Site site(setting.size, ReportsPerStation);
    const QList<Report> reports = makeReports(site, setting.size);
    SilentHost host(setting.pluginFile);
    site.addStationsTo(host.topologyModel, true);

    const StopWatch watch;
    for (const Report &sent : reports)
        host.report(sent.data, sent.stationID);
    const double milliseconds = watch.milliseconds();

    verify(host.errors()->rowCount() == remainingErrors(site, reports),
           "the high values are listed");
    return milliseconds;
}

// A row that came or went with a report.
struct RowChange
{
    int report;
    bool isInserted;
    int row;         ///< where it was removed
    ErrorRow values; ///< what was inserted at the end
};

// The changes that the plug-in makes to its list in the course of the reports.
QList<RowChange> recordChanges(const Setting &setting, const Site &site,
                               const QList<Report> &reports)
{
    SilentHost host(setting.pluginFile);
    site.addStationsTo(host.topologyModel, true);
    const QStandardItemModel &errors = *host.errors();
    int current = 0;
    QList<RowChange> changes;
    QObject::connect(&errors, &QAbstractItemModel::rowsInserted, &errors,
                     [&](const QModelIndex &, int first) {
                         changes.append({current, true, first, errorRow(errors, first)});
                     });
    QObject::connect(&errors, &QAbstractItemModel::rowsRemoved, &errors,
                     [&](const QModelIndex &, int first) {
                         changes.append({current, false, first, {}});
                     });
    for (current = 0; current < reports.size(); ++current)
        host.report(reports.at(current).data, reports.at(current).stationID);
    return changes;
}

// Reads every value of a report once, and whose it is, as a rule has to before it can tell that
// nothing changed.
int readReport(const Report &sent)
{
    const QVariantMap values = sent.data.toMap();
    int sum = static_cast<int>(qHash(sent.stationID) % 2);
    sum += values.value(QStringLiteral("cpuPercentage")).toInt()
           + values.value(QStringLiteral("memPercentage")).toInt();
    const QVariantList network = values.value(QStringLiteral("networkUsageList")).toList();
    for (const QVariant &entry : network) {
        const QVariantMap usage = entry.toMap();
        sum += usage.value(QStringLiteral("networkPercentage")).toInt();
        sum += static_cast<int>(usage.value(QStringLiteral("networkInterface")).toString().size());
    }
    return sum;
}

// The name that a row of this station begins with.
qsizetype readName(const TopologyModel &topology, int station)
{
    const QModelIndex index = topology.index(station, 0, topology.index(0, 0));
    const QVariantMap names = index.data(TopologyRole::LookupNames).toMap();
    return names.value(QStringLiteral("nameRole")).toString().size();
}

double bareReport(const Setting &setting)
{
    const Site site(setting.size, ReportsPerStation);
    const QList<Report> reports = makeReports(site, setting.size);
    const QList<RowChange> changes = recordChanges(setting, site, reports);
    TopologyModel topology;
    site.addStationsTo(topology, true);
    const int stations = static_cast<int>(site.stations().size());
    BareErrorList errors;

    const StopWatch watch;
    qint64 sum = 0;
    auto change = changes.cbegin();
    for (int i = 0; i < reports.size(); ++i) {
        sum += readReport(reports.at(i));
        for (; change != changes.cend() && change->report == i; ++change) {
            if (change->isInserted) {
                sum += readName(topology, i % stations);
                errors.append(change->values);
            } else {
                errors.model.removeRow(change->row);
            }
        }
    }
    const double milliseconds = watch.milliseconds();

    verify(sum > 0 && errors.model.rowCount() == remainingErrors(site, reports),
           "the high values are in the bare list");
    return milliseconds;
}

} // namespace

const Scenario ResourceReports{"h", "N resource reports of N/10 stations", report, bareReport};
