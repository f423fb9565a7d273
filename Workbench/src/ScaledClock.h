#ifndef SCALEDCLOCK_H
#define SCALEDCLOCK_H

#include "Clock.h"

#include <QElapsedTimer>

/// The system's clock, or one that starts with it and then runs faster or slower.
class ScaledClock : public Clock
{
public:
    /// @param speed how many seconds pass on this clock in a real one; greater than 0
    explicit ScaledClock(double speed = 1.0);

    qint64 nowMs() const override;
    void callAt(qint64 timeMs, QObject *context, std::function<void()> call) override;
    qint64 elapsedMs() const override;
    void callAfter(qint64 ms, QObject *context, std::function<void()> call) override;

private:
    using Now = qint64 (ScaledClock::*)() const;

    void callWhen(Now now, qint64 dueMs, QObject *context, std::function<void()> call);

    const double m_speed;
    const qint64 m_startMs;
    QElapsedTimer m_elapsed;
};

#endif
