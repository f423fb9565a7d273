#include "SiteWatch.h"

#include "SiteServer.h"
#include "StationWatch.h"

SiteWatch::SiteWatch(SiteServer &server, const Site &site, QObject *parent)
    : QObject(parent)
{
    site.forEachStation([this, &server](const Station &station) {
        if (!station.exporter)
            return;
        m_stations.push_back(std::make_unique<StationWatch>(server, station, m_manager));
        follow(m_stations.back()->presence());
    });
}

SiteWatch::~SiteWatch() = default;

void SiteWatch::start()
{
    for (const std::unique_ptr<StationWatch> &station : m_stations)
        station->start();
}

void SiteWatch::follow(const NodePresence &presence)
{
    connect(&presence, &NodePresence::lost, this, &SiteWatch::lost);
    connect(&presence, &NodePresence::back, this, &SiteWatch::back);
}
