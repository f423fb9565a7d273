#include "StationWatch.h"

#include "ExporterReading.h"
#include "MetricsText.h"
#include "SiteServer.h"

StationWatch::StationWatch(SiteServer &server, const Station &station,
                           QNetworkAccessManager &manager, StationPace pace, QObject *parent)
    : QObject(parent)
    , m_server(server)
    , m_stationId(station.id)
    , m_bandwidths(station.exporter->bandwidths)
    , m_scraper(station.exporter->url, pace.timeout, manager)
    , m_presence(server, NodeType::Station, station.id, pace.lostAfter)
{
    m_time.start();
    m_timer.setInterval(pace.interval);
    connect(&m_timer, &QTimer::timeout, &m_scraper, &ExporterScraper::scrape);
    connect(&m_scraper, &ExporterScraper::answered, this, &StationWatch::take);
    connect(&m_scraper, &ExporterScraper::failed, this, &StationWatch::fail);
}

void StationWatch::start()
{
    m_scraper.scrape();
    m_timer.start();
}

void StationWatch::take(const QByteArray &text)
{
    ExporterReading reading;
    try {
        reading = readExporter(text, m_bandwidths);
    } catch (const MetricsError &error) {
        fail(tr("the answer cannot be used: %1").arg(error.reason()));
        return;
    }
    m_presence.answered();
    const std::optional<int> cpu = m_cpu.measure(reading.cpus);
    const std::vector<NetworkUsage> networks =
        m_network.measure(reading.networks, m_time.elapsed());
    if (cpu)
        m_server.reportResources(m_stationId, {*cpu, reading.memoryPercentage, networks});
}

// The machine may have started anew in between, and then its counters, too.
void StationWatch::fail(const QString &reason)
{
    m_cpu = {};
    m_network = {};
    m_presence.failed(reason);
}
