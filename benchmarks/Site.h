#ifndef SITE_H
#define SITE_H

#include <QList>
#include <QStringList>

class TopologyModel;

/// A made-up site: cameras in stations, each with an id and a name.
///
/// All station ids are equally long, so that none is the beginning of another.
class Site
{
public:
    struct Station
    {
        QString id;
        QString name; ///< a place and a number; the place of one station in eight is FilteredPlace
        QStringList cameraIDs;
    };

    static constexpr int CamerasPerStation = 100;

    explicit Site(int cameras, int camerasPerStation = CamerasPerStation);

    const QList<Station> &stations() const { return m_stations; }

    /// The cameras of all stations, station by station.
    QStringList cameraIDs() const;

    /// Adds all stations to the topology, without their cameras.
    void addStationsTo(TopologyModel &topology, bool connected) const;

    /// Adds all stations with their cameras to the topology.
    void addTo(TopologyModel &topology, bool connected) const;

    /// Adds one station with its cameras to the topology.
    static void addTo(TopologyModel &topology, const Station &station, bool connected);

private:
    QList<Station> m_stations;
};

/// Letters that stand in the names of some stations and in no other text of their errors; already
/// the first two tell them apart.
inline const QString FilteredPlace = QStringLiteral("Entrance");

#endif
