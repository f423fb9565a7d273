#include "SiteServer.h"

#include "Clock.h"
#include "ServerNames.h"

#include <utility>

std::vector<CommandResult> SiteServer::executeAll(const std::vector<SiteCommand> &commands)
{
    std::vector<CommandResult> results;
    for (auto next = commands.begin(); next != commands.end();) {
        QVariantList snoozes;
        for (; next != commands.end() && next->name == ServerNames::SetSnooze; ++next)
            snoozes.append(next->data);
        for (CommandResult &result : snooze(snoozes))
            results.push_back(std::move(result));
        if (next != commands.end()) {
            results.push_back(execute(next->name, next->data, next->target));
            ++next;
        }
    }
    return results;
}

CommandResult SiteServer::execute(const QString &command, const QVariant &data,
                                  const QString &target)
{
    if (command == ServerNames::GetSnoozeList)
        return {ServerNames::Success, m_snoozes.activeNodeIds(m_clock.nowMs())};
    if (command == ServerNames::SetSnooze)
        return snooze({data}).front();
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
