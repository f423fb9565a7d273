#include "SiteServer.h"

#include "Clock.h"
#include "ServerNames.h"
#include "SnoozeStore.h"

#include <utility>

namespace {

// The last second of the year 9999, the longest snooze that can be written as a date.
constexpr qint64 LatestEndSeconds = 253'402'300'799;

constexpr qint64 MsPerSecond = 1000;

Snooze snoozeFrom(const QVariantMap &request)
{
    return {request.value(ServerNames::KeyNodeId).toString(),
            request.value(ServerNames::KeyType).toInt(),
            request.value(ServerNames::KeyTimestamp).toLongLong()};
}

} // namespace

// Snoozes of nodes that the site does not have are kept: it may be another site by mistake.
void SiteServer::loadSnoozes()
{
    m_snoozes.clear();
    if (!m_store)
        return;
    for (const Snooze &snooze : m_store->snoozes())
        m_snoozes.set(snooze);
    takeExpiredSnoozes();
    scheduleExpiry();
}

// Success, or why a snooze cannot be set.
QString SiteServer::verdictOn(const Snooze &snooze) const
{
    const bool isCamera = m_site.findCamera(snooze.nodeId);
    if (!isCamera && !m_site.findStation(snooze.nodeId))
        return ServerNames::UnknownNode;
    const int expected =
        isCamera ? ServerNames::CameraDisconnected : ServerNames::StationDisconnected;
    const bool isSound = snooze.errorType == expected && snooze.endSeconds <= LatestEndSeconds
                         && snoozeState(snooze, m_clock.nowMs()) == SnoozeState::Active;
    return isSound ? ServerNames::Success : ServerNames::InvalidArgument;
}

std::vector<CommandResult> SiteServer::snooze(const QVariantList &requests)
{
    std::vector<CommandResult> results;
    std::vector<Snooze> accepted;
    for (const QVariant &request : requests) {
        const Snooze snooze = snoozeFrom(request.toMap());
        results.push_back({verdictOn(snooze), request});
        if (results.back().code == ServerNames::Success)
            accepted.push_back(snooze);
    }
    if (m_store && !accepted.empty() && !m_store->set(accepted)) {
        for (CommandResult &result : results) {
            if (result.code == ServerNames::Success)
                result.code = ServerNames::StoreFailed;
        }
        return results;
    }
    for (const Snooze &snooze : accepted) {
        m_snoozes.set(snooze);
        scheduleExpiryAt(snooze.endSeconds * MsPerSecond);
        raise(ServerNames::SnoozeError, QVariantMap{{ServerNames::KeyNodeId, snooze.nodeId},
                                                    {ServerNames::KeyType, snooze.errorType}});
    }
    return results;
}

bool SiteServer::isDown(const Snooze &snooze) const
{
    if (const Camera *const camera = m_site.findCamera(snooze.nodeId))
        return !camera->connected;
    const Station *const station = m_site.findStation(snooze.nodeId);
    return station && !station->connected;
}

// The store forgets first, so that no snooze comes back of whose end the clients have heard.
void SiteServer::dropSnoozes(const QStringList &nodeIds)
{
    QStringList dropped;
    for (const QString &nodeId : nodeIds) {
        if (m_snoozes.remove(nodeId))
            dropped.append(nodeId);
    }
    if (m_store && !dropped.isEmpty())
        m_store->remove(dropped);
    for (const QString &nodeId : std::as_const(dropped))
        raise(ServerNames::RemoveSnooze, nodeId);
}

std::vector<Snooze> SiteServer::takeExpiredSnoozes()
{
    std::vector<Snooze> expired = m_snoozes.takeExpired(m_clock.nowMs());
    QStringList nodeIds;
    for (const Snooze &snooze : expired)
        nodeIds.append(snooze.nodeId);
    if (m_store && !nodeIds.isEmpty())
        m_store->remove(nodeIds);
    return expired;
}

void SiteServer::expireSnoozes()
{
    for (const Snooze &snooze : takeExpiredSnoozes()) {
        if (isDown(snooze))
            raise(ServerNames::DeviceStillError,
                  QVariantMap{{ServerNames::KeyNodeId, snooze.nodeId},
                              {ServerNames::KeyType, snooze.errorType}});
        else
            raise(ServerNames::RemoveSnooze, snooze.nodeId);
    }
    scheduleExpiry();
}

void SiteServer::scheduleExpiry()
{
    if (const std::optional<qint64> next = m_snoozes.nextEndMs())
        scheduleExpiryAt(*next);
}

// One call is under way for the earliest end. Where a snooze was dropped or replaced meanwhile, the
// call finds nothing expired and looks for the next end.
void SiteServer::scheduleExpiryAt(qint64 timeMs)
{
    if (m_expiryCallMs && *m_expiryCallMs <= timeMs)
        return;
    m_expiryCallMs = timeMs;
    m_clock.callAt(timeMs, this, [this] {
        m_expiryCallMs.reset();
        expireSnoozes();
    });
}
