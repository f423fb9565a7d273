#include "UsageKeys.h"

#include "ErrorKinds.h"

#include <QStringView>

namespace {

constexpr QLatin1Char Separator('_');

bool isUsageKey(QStringView key)
{
    static_assert(HighCpuUsage == 0 && HighMemoryUsage == 1 && HighNetworkUsage == 2);
    return key.size() >= 2 && key.at(0) >= QLatin1Char('0') && key.at(0) <= QLatin1Char('2')
           && key.at(1) == Separator;
}

/// The first part of an id, without a copy: for looking up alone, as long as the id lives.
QString borrowedHead(QStringView id)
{
    const qsizetype end = id.indexOf(Separator);
    return QString::fromRawData(id.data(), end < 0 ? id.size() : end);
}

QString borrowedHeadOfKey(const QString &key)
{
    return borrowedHead(QStringView(key).sliced(2));
}

} // namespace

void UsageKeys::add(const QString &key)
{
    if (!isUsageKey(key))
        return;
    const QString head = borrowedHeadOfKey(key);
    ++m_counts[QString(head.constData(), head.size())];
    m_lastStationID = QString();
}

void UsageKeys::remove(const QString &key)
{
    if (!isUsageKey(key))
        return;
    const auto it = m_counts.find(borrowedHeadOfKey(key));
    if (it == m_counts.end())
        return;
    if (--it.value() == 0)
        m_counts.erase(it);
    m_lastStationID = QString();
}

void UsageKeys::clear()
{
    m_counts.clear();
    m_lastStationID = QString();
}

bool UsageKeys::mayHold(const QString &stationID) const
{
    // All values of one report ask with the same string.
    if (stationID.isSharedWith(m_lastStationID))
        return m_lastAnswer;
    m_lastStationID = stationID;
    // A marker in the id is filled by what follows, so that its key begins otherwise.
    m_lastAnswer =
        stationID.contains(QLatin1Char('%')) || m_counts.contains(borrowedHead(stationID));
    return m_lastAnswer;
}
