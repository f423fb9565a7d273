#include "SnoozeList.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr qint64 MsPerSecond = 1000;

} // namespace

SnoozeState snoozeState(const Snooze &snooze, qint64 nowMs)
{
    return nowMs / MsPerSecond < snooze.endSeconds ? SnoozeState::Active : SnoozeState::Expired;
}

void SnoozeList::set(const Snooze &snooze)
{
    m_snoozes.insert(snooze.nodeId, snooze);
}

bool SnoozeList::remove(const QString &nodeId)
{
    return m_snoozes.remove(nodeId) > 0;
}

void SnoozeList::clear()
{
    m_snoozes.clear();
}

QStringList SnoozeList::activeNodeIds(qint64 nowMs) const
{
    QStringList ids;
    for (const Snooze &snooze : active(nowMs))
        ids.append(snooze.nodeId);
    return ids;
}

std::vector<Snooze> SnoozeList::active(qint64 nowMs) const
{
    std::vector<Snooze> snoozes;
    std::copy_if(m_snoozes.cbegin(), m_snoozes.cend(), std::back_inserter(snoozes),
                 [nowMs](const Snooze &snooze) {
                     return snoozeState(snooze, nowMs) == SnoozeState::Active;
                 });
    return snoozes;
}

std::optional<Snooze> SnoozeList::active(const QString &nodeId, qint64 nowMs) const
{
    const auto snooze = m_snoozes.find(nodeId);
    if (snooze == m_snoozes.end() || snoozeState(*snooze, nowMs) != SnoozeState::Active)
        return std::nullopt;
    return *snooze;
}

std::vector<Snooze> SnoozeList::takeExpired(qint64 nowMs)
{
    std::vector<Snooze> expired;
    for (const Snooze &snooze : std::as_const(m_snoozes)) {
        if (snoozeState(snooze, nowMs) == SnoozeState::Expired)
            expired.push_back(snooze);
    }
    for (const Snooze &snooze : expired)
        m_snoozes.remove(snooze.nodeId);
    std::stable_sort(expired.begin(), expired.end(), [](const Snooze &left, const Snooze &right) {
        return left.endSeconds < right.endSeconds;
    });
    return expired;
}

std::optional<qint64> SnoozeList::nextEndMs() const
{
    const auto next = std::min_element(
        m_snoozes.begin(), m_snoozes.end(),
        [](const Snooze &left, const Snooze &right) { return left.endSeconds < right.endSeconds; });
    if (next == m_snoozes.end())
        return std::nullopt;
    return next->endSeconds * MsPerSecond;
}
