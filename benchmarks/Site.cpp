#include "Site.h"

#include "TopologyModel.h"

#include <algorithm>
#include <array>

namespace {

QString numbered(const QString &word, int number)
{
    return QStringLiteral("%1%2").arg(word).arg(number, 6, 10, QLatin1Char('0'));
}

QString stationName(int number)
{
    static const std::array places = {
        FilteredPlace,
        QStringLiteral("Car park"),
        QStringLiteral("Corridor"),
        QStringLiteral("Loading bay"),
        QStringLiteral("Stairwell"),
        QStringLiteral("Reception"),
        QStringLiteral("Warehouse"),
        QStringLiteral("Platform"),
    };
    const QString &place = places.at(static_cast<std::size_t>(number) % places.size());
    return numbered(place + QLatin1Char(' '), number);
}

} // namespace

Site::Site(int cameras, int camerasPerStation)
{
    for (int first = 0; first < cameras; first += camerasPerStation) {
        const int number = first / camerasPerStation;
        Station station{numbered(QStringLiteral("st"), number), stationName(number), {}};
        const int count = std::min(camerasPerStation, cameras - first);
        for (int camera = 0; camera < count; ++camera)
            station.cameraIDs.append(numbered(station.id + QStringLiteral("/cam"), camera));
        m_stations.append(station);
    }
}

QStringList Site::cameraIDs() const
{
    QStringList ids;
    for (const Station &station : m_stations)
        ids += station.cameraIDs;
    return ids;
}

void Site::addStationsTo(TopologyModel &topology, bool connected) const
{
    for (const Station &station : m_stations)
        topology.addStation(station.id, station.name, connected);
}

void Site::addTo(TopologyModel &topology, bool connected) const
{
    for (const Station &station : m_stations)
        addTo(topology, station, connected);
}

void Site::addTo(TopologyModel &topology, const Station &station, bool connected)
{
    QStandardItem *item = topology.addStation(station.id, station.name, connected);
    for (int camera = 0; camera < station.cameraIDs.size(); ++camera) {
        TopologyModel::addCamera(item, station.cameraIDs.at(camera),
                                 numbered(QStringLiteral("Camera "), camera), connected);
    }
}
