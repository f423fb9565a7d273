#ifndef STATIONWATCH_H
#define STATIONWATCH_H

#include "CpuMeter.h"
#include "ExporterScraper.h"
#include "NetworkMeter.h"
#include "NodePresence.h"

#include <QElapsedTimer>

/// How often a real station is asked, and how long it may be silent.
struct StationPace
{
    std::chrono::milliseconds interval{1000};
    std::chrono::milliseconds timeout{2000};
    int lostAfter = 3; ///< failed attempts in a row
};

/// A real station: has it asked for its load again and again, reports what it answers as the
/// station's load, and whether it answers.
class StationWatch : public QObject
{
    Q_OBJECT

public:
    /// @param station has an exporter
    /// @param server  must outlive this object, as must the manager
    StationWatch(SiteServer &server, const Station &station, QNetworkAccessManager &manager,
                 StationPace pace = {}, QObject *parent = nullptr);

    void start();

    const NodePresence &presence() const { return m_presence; }

private:
    void take(const QByteArray &text);
    void fail(const QString &reason);

    SiteServer &m_server;
    const QString m_stationId;
    const QHash<QString, double> m_bandwidths;
    ExporterScraper m_scraper;
    NodePresence m_presence;
    CpuMeter m_cpu;
    NetworkMeter m_network;
    QElapsedTimer m_time;
    QTimer m_timer;
};

#endif
