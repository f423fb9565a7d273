#include "Outage.h"

#include "SilentHost.h"

void reportCamerasDown(SilentHost &host, const Site &site)
{
    for (const Site::Station &station : site.stations()) {
        host.topologyModel.reset();
        Site::addTo(host.topologyModel, station, true);
        for (const QString &cameraID : station.cameraIDs)
            Q_EMIT host.topology.nodeStatusChanged(TopologyModel::Camera, cameraID, false);
    }
    host.topologyModel.reset();
}

void reportStationsDown(SilentHost &host, const Site &site)
{
    for (const Site::Station &station : site.stations()) {
        host.topologyModel.reset();
        Site::addTo(host.topologyModel, station, true);
        Q_EMIT host.topology.nodeStatusChanged(TopologyModel::Station, station.id, false);
    }
    host.topologyModel.reset();
}

QList<ErrorRow> rowsOfCamerasDown(const QString &pluginFile, const Site &site)
{
    SilentHost host(pluginFile);
    reportCamerasDown(host, site);
    return errorRows(*host.errors());
}

QList<ErrorRow> rowsOfStationsDown(const QString &pluginFile, const Site &site)
{
    SilentHost host(pluginFile);
    reportStationsDown(host, site);
    return errorRows(*host.errors());
}
