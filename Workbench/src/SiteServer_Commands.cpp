#include "SiteServer.h"

#include "Clock.h"
#include "ServerNames.h"

namespace {

// The last second of the year 9999, the longest snooze that can be written as a date.
constexpr qint64 LatestEndSeconds = 253'402'300'799;

} // namespace

CommandResult SiteServer::execute(const QString &command, const QVariant &data,
                                  const QString &target)
{
    if (command == ServerNames::GetSnoozeList)
        return {ServerNames::Success, m_snoozes.activeNodeIds(m_clock.nowMs())};
    if (command == ServerNames::SetSnooze)
        return snooze(data);
    if (command == ServerNames::IsSupportSystemMonitor)
        return supportsMonitoring(target);
    if (command == ServerNames::ReconnectCameras) {
        reconnectCameras(data.toStringList(), target);
        return {ServerNames::Success, data};
    }
    if (command == ServerNames::ReconnectSubstations) {
        reconnectStations(data.toStringList(), target);
        return {ServerNames::Success, data};
    }
    return {ServerNames::UnknownCommand, data};
}

CommandResult SiteServer::snooze(const QVariant &data)
{
    const QVariantMap request = data.toMap();
    const Snooze snooze{request.value(ServerNames::KeyNodeId).toString(),
                        request.value(ServerNames::KeyType).toInt(),
                        request.value(ServerNames::KeyTimestamp).toLongLong()};
    const bool isCamera = m_site.findCamera(snooze.nodeId);
    const bool isStation = m_site.findStation(snooze.nodeId);
    if (!isCamera && !isStation)
        return {ServerNames::UnknownNode, data};
    const int expected =
        isCamera ? ServerNames::CameraDisconnected : ServerNames::StationDisconnected;
    if (snooze.errorType != expected || snooze.endSeconds > LatestEndSeconds
        || snoozeState(snooze, m_clock.nowMs()) == SnoozeState::Expired)
        return {ServerNames::InvalidArgument, data};

    m_snoozes.set(snooze);
    scheduleExpiry();
    raise(ServerNames::SnoozeError, QVariantMap{{ServerNames::KeyNodeId, snooze.nodeId},
                                                {ServerNames::KeyType, snooze.errorType}});
    return {ServerNames::Success, data};
}

// To a client, every answer but the internal error means that the station supports monitoring.
CommandResult SiteServer::supportsMonitoring(const QString &stationId) const
{
    const Station *const station = m_site.findStation(stationId);
    const bool supports = station && station->connected && station->supportsMonitoring;
    return {supports ? ServerNames::Success : ServerNames::FrameworkInternalError, {}};
}

void SiteServer::reconnectCameras(const QStringList &ownParts, const QString &stationId)
{
    if (!isReachable(stationId))
        return;
    for (const QString &part : ownParts)
        setCameraConnected(childNodeId(stationId, part), true);
}

void SiteServer::reconnectStations(const QStringList &ownParts, const QString &parentId)
{
    if (!parentId.isEmpty() && !isReachable(parentId))
        return;
    for (const QString &part : ownParts)
        setStationConnected(childNodeId(parentId, part), true);
}

// A station is reached through the stations above it.
bool SiteServer::isReachable(const QString &stationId) const
{
    for (QString id = stationId; !id.isEmpty(); id = parentNodeId(id)) {
        const Station *const station = m_site.findStation(id);
        if (!station || !station->connected)
            return false;
    }
    return !stationId.isEmpty();
}

bool SiteServer::isDown(const Snooze &snooze) const
{
    if (const Camera *const camera = m_site.findCamera(snooze.nodeId))
        return !camera->connected;
    const Station *const station = m_site.findStation(snooze.nodeId);
    return station && !station->connected;
}

void SiteServer::dropSnooze(const QString &nodeId)
{
    if (m_snoozes.remove(nodeId))
        raise(ServerNames::RemoveSnooze, nodeId);
}

void SiteServer::expireSnoozes()
{
    for (const Snooze &snooze : m_snoozes.takeExpired(m_clock.nowMs())) {
        if (isDown(snooze))
            raise(ServerNames::DeviceStillError,
                  QVariantMap{{ServerNames::KeyNodeId, snooze.nodeId},
                              {ServerNames::KeyType, snooze.errorType}});
        else
            raise(ServerNames::RemoveSnooze, snooze.nodeId);
    }
    scheduleExpiry();
}

// One call is under way for the earliest end. Where a snooze was dropped or replaced meanwhile, the
// call finds nothing expired and looks for the next end.
void SiteServer::scheduleExpiry()
{
    const std::optional<qint64> next = m_snoozes.nextEndMs();
    if (!next || (m_expiryCallMs && *m_expiryCallMs <= *next))
        return;
    m_expiryCallMs = next;
    m_clock.callAt(*next, this, [this] {
        m_expiryCallMs.reset();
        expireSnoozes();
    });
}
