#include "QuietPeriod.h"

#include <QAbstractItemModel>

#include <algorithm>

QuietPeriod::QuietPeriod(const QAbstractItemModel &list, const QuietTimes &times)
    : m_times(times)
    , m_walk(0)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_isWaiting = false;
        Q_EMIT reached();
    });
    connect(&list, &QAbstractItemModel::rowsInserted, this, &QuietPeriod::wait);
    connect(&list, &QAbstractItemModel::rowsRemoved, this, &QuietPeriod::wait);
    connect(&list, &QAbstractItemModel::dataChanged, this, &QuietPeriod::wait);
}

void QuietPeriod::expectWalk()
{
    m_walk.setRemainingTime(m_times.walk);
    wait();
}

void QuietPeriod::start()
{
    m_isWaiting = true;
    m_patience.setRemainingTime(m_times.patience);
    wait();
}

void QuietPeriod::wait()
{
    if (!m_isWaiting)
        return;
    const qint64 rest = std::max(m_times.rest, m_walk.remainingTime());
    m_timer.start(static_cast<int>(std::min(rest, m_patience.remainingTime())));
}
