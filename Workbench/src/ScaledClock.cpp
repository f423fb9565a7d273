#include "ScaledClock.h"

#include <QDateTime>
#include <QTimer>

#include <chrono>
#include <cmath>

namespace {

// A long wait is cut into pieces, so that it follows the system clock when that is set.
constexpr double LongestPauseMs = 60'000;

} // namespace

ScaledClock::ScaledClock(double speed)
    : m_speed(speed)
    , m_startMs(QDateTime::currentMSecsSinceEpoch())
{
    m_elapsed.start();
}

qint64 ScaledClock::nowMs() const
{
    const auto elapsed = static_cast<double>(QDateTime::currentMSecsSinceEpoch() - m_startMs);
    return m_startMs + static_cast<qint64>(elapsed * m_speed);
}

void ScaledClock::callAt(qint64 timeMs, QObject *context, std::function<void()> call)
{
    callWhen(&ScaledClock::nowMs, timeMs, context, std::move(call));
}

qint64 ScaledClock::elapsedMs() const
{
    return static_cast<qint64>(static_cast<double>(m_elapsed.elapsed()) * m_speed);
}

void ScaledClock::callAfter(qint64 ms, QObject *context, std::function<void()> call)
{
    callWhen(&ScaledClock::elapsedMs, elapsedMs() + ms, context, std::move(call));
}

void ScaledClock::callWhen(Now now, qint64 dueMs, QObject *context, std::function<void()> call)
{
    const double pause = std::ceil(static_cast<double>(dueMs - (this->*now)()) / m_speed);
    const auto bounded = static_cast<int>(std::clamp(pause, 0.0, LongestPauseMs));
    QTimer::singleShot(std::chrono::milliseconds(bounded), Qt::PreciseTimer, context,
                       [this, now, dueMs, context, call = std::move(call)] {
                           if ((this->*now)() < dueMs)
                               callWhen(now, dueMs, context, call);
                           else
                               call();
                       });
}
