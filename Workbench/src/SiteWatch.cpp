#include "SiteWatch.h"

#include "StationWatch.h"

SiteWatch::SiteWatch(SiteServer &server, const Site &site, QObject *parent)
    : QObject(parent)
    , m_cameras(server)
{
    connect(&m_cameras, &CameraWatch::lost, this, &SiteWatch::lost);
    connect(&m_cameras, &CameraWatch::back, this, &SiteWatch::back);
    site.forEachStation([this, &server](const Station &station) {
        if (station.exporter)
            add(server, station);
        for (const Camera &camera : station.cameras) {
            if (!camera.address.isEmpty())
                m_cameras.add(camera);
        }
    });
}

SiteWatch::~SiteWatch() = default;

void SiteWatch::start()
{
    for (const std::unique_ptr<StationWatch> &station : m_stations)
        station->start();
    m_cameras.start();
}

void SiteWatch::add(SiteServer &server, const Station &station)
{
    m_stations.push_back(std::make_unique<StationWatch>(server, station, m_manager));
    const NodePresence &presence = m_stations.back()->presence();
    connect(&presence, &NodePresence::lost, this, &SiteWatch::lost);
    connect(&presence, &NodePresence::back, this, &SiteWatch::back);
}
