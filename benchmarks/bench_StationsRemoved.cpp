#include "BareErrorList.h"
#include "BareProxy.h"
#include "Outage.h"
#include "Scenario.h"
#include "Shuffled.h"
#include "SilentHost.h"
#include "StopWatch.h"
#include "Verify.h"

namespace {

double removeStations(const Setting &setting)
{
    const Site site(setting.size);
    const QList<int> order = shuffledNumbers(site.stations().size());
    SilentHost host(setting.pluginFile);
    reportCamerasDown(host, site);
    const auto proxy = host.proxy();
    verify(proxy->rowCount() == setting.size, "a row for each camera");

    const StopWatch watch;
    for (const int station : order)
        Q_EMIT host.topology.stationRemoved(site.stations().at(station).id);
    const double milliseconds = watch.milliseconds();

    verify(proxy->rowCount() == 0, "no row is left");
    return milliseconds;
}

// The items of each station, in the order of their rows.
QList<QList<QStandardItem *>> byStation(const QList<QStandardItem *> &items, const Site &site)
{
    QList<QList<QStandardItem *>> stations;
    qsizetype first = 0;
    for (const Site::Station &station : site.stations()) {
        stations.append(items.mid(first, station.cameraIDs.size()));
        first += station.cameraIDs.size();
    }
    return stations;
}

double bareRemoveStations(const Setting &setting)
{
    const Site site(setting.size);
    const QList<int> order = shuffledNumbers(site.stations().size());
    BareErrorList errors;
    const auto stations = byStation(errors.fill(rowsOfCamerasDown(setting.pluginFile, site)), site);
    const BareProxy proxy(errors.model);

    const StopWatch watch;
    for (const int station : order) {
        const QList<QStandardItem *> &items = stations.at(station);
        for (qsizetype i = items.size() - 1; i >= 0; --i)
            errors.remove(items.at(i));
    }
    const double milliseconds = watch.milliseconds();

    verify(proxy.rowCount() == 0, "no bare row is left");
    return milliseconds;
}

} // namespace

const Scenario StationsRemoved{"g", "every station removed in random order, proxy", removeStations,
                               bareRemoveStations};
