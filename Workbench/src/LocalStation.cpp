#include "LocalStation.h"

#include "MachineSample.h"
#include "SiteServer.h"

#include <QSysInfo>

#include <utility>

Station LocalStation::station()
{
    Station station;
    station.id = ThisMachineId;
    station.name = tr("This machine (%1)").arg(QSysInfo::machineHostName());
    return station;
}

LocalStation::LocalStation(SiteServer &server, NetworkCounters counters, QObject *parent)
    : QObject(parent)
    , m_server(server)
    , m_counters(std::move(counters))
{
    m_time.start();
}

void LocalStation::report(int cpu, int memory)
{
    if (!MachineSample::knownCpu(cpu) || !MachineSample::knownMemory(memory))
        return;
    m_server.reportResources(ThisMachineId,
                             {cpu, memory, m_meter.measure(m_counters.read(), m_time.elapsed())});
}
