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
{ }

qint64 ScaledClock::nowMs() const
{
    const auto elapsed = static_cast<double>(QDateTime::currentMSecsSinceEpoch() - m_startMs);
    return m_startMs + static_cast<qint64>(elapsed * m_speed);
}

void ScaledClock::callAt(qint64 timeMs, QObject *context, std::function<void()> call)
{
    const double pause = std::ceil(static_cast<double>(timeMs - nowMs()) / m_speed);
    const auto bounded = static_cast<int>(std::clamp(pause, 0.0, LongestPauseMs));
    QTimer::singleShot(std::chrono::milliseconds(bounded), Qt::PreciseTimer, context,
                       [this, timeMs, context, call = std::move(call)] {
                           if (nowMs() < timeMs)
                               callAt(timeMs, context, call);
                           else
                               call();
                       });
}
