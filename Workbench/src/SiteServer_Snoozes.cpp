#include "SiteServer.h"

#include "Clock.h"
#include "ServerNames.h"
#include "SnoozeStore.h"

#include <utility>

namespace {

// The last second of the year 9999, the longest snooze that can be written as a date.
constexpr qint64 LatestEndSeconds = 253'402'300'799;

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

    if (m_store && !m_store->set(snooze))
        return {ServerNames::StoreFailed, data};
    m_snoozes.set(snooze);
    scheduleExpiry();
    raise(ServerNames::SnoozeError, QVariantMap{{ServerNames::KeyNodeId, snooze.nodeId},
                                                {ServerNames::KeyType, snooze.errorType}});
    return {ServerNames::Success, data};
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
