#include "SiteServer.h"

#include "Clock.h"
#include "ServerNames.h"

#include <utility>

namespace {

constexpr qint64 ReportIntervalMs = 1000;

} // namespace

SiteServer::SiteServer(Site site, Clock &clock, SnoozeStore *store, QObject *parent)
    : QObject(parent)
    , m_clock(clock)
    , m_store(store)
    , m_site(std::move(site))
{
    loadSnoozes();
    m_clock.callAfter(ReportIntervalMs, this, [this] { reportAll(); });
}

std::vector<Snooze> SiteServer::snoozes() const
{
    return m_snoozes.active(m_clock.nowMs());
}

std::optional<Snooze> SiteServer::snoozeOf(const QString &nodeId) const
{
    return m_snoozes.active(nodeId, m_clock.nowMs());
}

void SiteServer::reset(Site site)
{
    m_site = std::move(site);
    loadSnoozes();
    // Events of the former site that are still on their way go with their context.
    m_events = std::make_unique<QObject>();
}

bool SiteServer::setCameraConnected(const QString &cameraId, bool connected)
{
    Camera *const camera = m_site.findCamera(cameraId);
    if (!camera)
        return false;
    camera->connected = connected;
    Q_EMIT nodeStatusChanged(NodeType::Camera, cameraId, connected);
    return true;
}

bool SiteServer::setStationConnected(const QString &stationId, bool connected)
{
    Station *const station = m_site.findStation(stationId);
    if (!station)
        return false;
    station->connected = connected;
    Q_EMIT nodeStatusChanged(NodeType::Station, stationId, connected);
    if (connected) {
        announceDisconnected(*station);
        announceStorage(*station);
    }
    return true;
}

bool SiteServer::removeCamera(const QString &cameraId)
{
    if (!m_site.removeCamera(cameraId))
        return false;
    Q_EMIT cameraRemoved(cameraId);
    dropSnoozes({cameraId});
    return true;
}

bool SiteServer::removeStation(const QString &stationId)
{
    const Station *const station = m_site.findStation(stationId);
    if (!station)
        return false;
    QStringList gone;
    station->forEachStation([&gone](const Station &removed) {
        gone.append(removed.id);
        for (const Camera &camera : removed.cameras)
            gone.append(camera.id);
    });
    m_site.removeStation(stationId);
    Q_EMIT stationRemoved(stationId);
    dropSnoozes(gone);
    return true;
}

bool SiteServer::setVolumeConnected(const QString &stationId, const QString &volumeId,
                                    bool connected)
{
    Station *const station = m_site.findStation(stationId);
    Volume *const volume = station ? station->findVolume(volumeId) : nullptr;
    if (!volume)
        return false;
    volume->connected = connected;
    if (station->connected)
        Q_EMIT storageChanged(stationId);
    return true;
}

bool SiteServer::setRecordedDays(const QString &stationId, const QString &groupId, int days)
{
    Station *const station = m_site.findStation(stationId);
    RecordingGroup *const group = station ? station->findRecordingGroup(groupId) : nullptr;
    if (!group)
        return false;
    group->recordedDays = days;
    if (station->connected)
        Q_EMIT storageChanged(stationId);
    return true;
}

bool SiteServer::renameRecordingGroup(const QString &stationId, const QString &groupId,
                                      const QString &name)
{
    Station *const station = m_site.findStation(stationId);
    RecordingGroup *const group = station ? station->findRecordingGroup(groupId) : nullptr;
    if (!group)
        return false;
    group->name = name;
    if (station->connected)
        Q_EMIT storageChanged(stationId);
    return true;
}

bool SiteServer::reportResources(const QString &stationId, const ResourceReport &report)
{
    const Station *const station = m_site.findStation(stationId);
    return station && raiseReport(*station, report);
}

bool SiteServer::setResources(const QString &stationId, const ResourceReport &level)
{
    Station *const station = m_site.findStation(stationId);
    if (!station)
        return false;
    station->resources = level;
    return reportResources(stationId, level);
}

void SiteServer::reportReachingLimit(const QString &serverName, double percentage)
{
    raise(ServerNames::ServerReachingLimited,
          QVariantMap{{ServerNames::KeyServerName, serverName},
                      {ServerNames::KeyVirtualSizePercentage, percentage}});
}

// Clients drop what they know of the nodes below a lost station, so they need to hear it again.
void SiteServer::announceDisconnected(const Station &station)
{
    for (const Camera &camera : station.cameras) {
        if (!camera.connected)
            Q_EMIT nodeStatusChanged(NodeType::Camera, camera.id, false);
    }
    for (const Station &below : station.stations) {
        if (!below.connected)
            Q_EMIT nodeStatusChanged(NodeType::Station, below.id, false);
        else
            announceDisconnected(below);
    }
}

void SiteServer::announceStorage(const Station &station)
{
    if (!station.connected)
        return;
    Q_EMIT storageChanged(station.id);
    for (const Station &below : station.stations)
        announceStorage(below);
}

bool SiteServer::raiseReport(const Station &station, const ResourceReport &resources)
{
    if (!station.connected || !station.supportsMonitoring)
        return false;
    raise(ServerNames::SystemResChanged, toEventData(resources), station.id);
    return true;
}

void SiteServer::raise(const QString &name, const QVariant &data, const QString &sourceId)
{
    QMetaObject::invokeMethod(
        m_events.get(), [this, name, data, sourceId] { Q_EMIT eventRaised(name, data, sourceId); },
        Qt::QueuedConnection);
}

void SiteServer::reportAll()
{
    ++m_reportCount;
    m_site.forEachStation([this](const Station &station) {
        if (station.resources && !station.exporter)
            raiseReport(station,
                        livelyReport(*station.resources, qHash(station.id), m_reportCount));
    });
    m_clock.callAfter(ReportIntervalMs, this, [this] { reportAll(); });
}
