#include "SiteServer.h"

#include "Clock.h"
#include "ServerNames.h"

#include <utility>

std::vector<CommandResult> SiteServer::executeAll(const std::vector<SiteCommand> &commands)
{
    std::vector<CommandResult> results;
    QVariantList snoozes; // that follow one another, and are set at once
    const auto setSnoozes = [&] {
        for (CommandResult &result : snooze(std::exchange(snoozes, {})))
            results.push_back(std::move(result));
    };
    for (const SiteCommand &command : commands) {
        if (command.name == ServerNames::SetSnooze) {
            snoozes.append(command.data);
            continue;
        }
        setSnoozes();
        results.push_back(execute(command.name, command.data, command.target));
    }
    setSnoozes();
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
