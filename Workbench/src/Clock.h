#ifndef CLOCK_H
#define CLOCK_H

#include <QtGlobal>

#include <functional>

class QObject;

/// The time that a site lives by: when snoozes end and when a scenario's events are due.
///
/// Used on one thread.
class Clock
{
public:
    Clock() = default;
    virtual ~Clock() = default;

    Clock(const Clock &) = delete;
    Clock &operator=(const Clock &) = delete;

    /// The present time in milliseconds since the epoch.
    virtual qint64 nowMs() const = 0;

    /// Makes a call from the event loop once the clock has reached a time.
    ///
    /// @param timeMs  milliseconds since the epoch; a time that has passed is due at once
    /// @param context no call is made after this object is gone
    virtual void callAt(qint64 timeMs, QObject *context, std::function<void()> call) = 0;

    /// How long the clock has been running, in milliseconds. Unlike nowMs(), it follows nobody who
    /// sets the system's clock: what lasts is measured by it.
    virtual qint64 elapsedMs() const = 0;

    /// Makes a call from the event loop after some milliseconds of elapsedMs().
    ///
    /// @param context no call is made after this object is gone
    virtual void callAfter(qint64 ms, QObject *context, std::function<void()> call) = 0;
};

#endif
