#include "QuietPeriod.h"

#include <QAbstractItemModel>

#include <algorithm>

namespace {

constexpr qint64 RestMs = 1000;
constexpr qint64 WalkMs = 6000;
constexpr qint64 PatienceMs = 10'000;

} // namespace

QuietPeriod::QuietPeriod(const QAbstractItemModel &list, QObject *parent)
    : QObject(parent)
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
    m_walk.setRemainingTime(WalkMs);
    wait();
}

void QuietPeriod::start()
{
    m_isWaiting = true;
    m_patience.setRemainingTime(PatienceMs);
    wait();
}

void QuietPeriod::wait()
{
    if (!m_isWaiting)
        return;
    const qint64 rest = std::max(RestMs, m_walk.remainingTime());
    m_timer.start(static_cast<int>(std::min(rest, m_patience.remainingTime())));
}
