#ifndef LOCALSTATION_H
#define LOCALSTATION_H

#include "NetworkCounters.h"
#include "NetworkMeter.h"
#include "Site.h"

#include <QElapsedTimer>
#include <QObject>

class SiteServer;

/// This machine as one more station of the site, which reports its true load.
class LocalStation : public QObject
{
    Q_OBJECT

public:
    /// The station to add to a site: named after this machine, with the id ThisMachineId.
    static Station station();

    /// @param server   hears the reports; it must outlive this object
    /// @param counters where the network figures come from
    LocalStation(SiteServer &server, NetworkCounters counters, QObject *parent = nullptr);

    /// Reports a sample of the machine together with its network's load since the last one.
    ///
    /// @param cpu    whole percents; a negative one means that the sample failed, then nothing is
    ///               reported
    /// @param memory whole percents
    void report(int cpu, int memory);

private:
    SiteServer &m_server;
    NetworkCounters m_counters;
    NetworkMeter m_meter;
    QElapsedTimer m_time;
};

#endif
