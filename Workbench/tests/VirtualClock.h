#ifndef VIRTUALCLOCK_H
#define VIRTUALCLOCK_H

#include "Clock.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>
#include <list>

/// A clock that stands still until a test moves it on.
class VirtualClock : public Clock
{
public:
    /// 2026-06-05 12:00:00 UTC
    static constexpr qint64 StartMs = 1'780'660'800'000;

    qint64 nowMs() const override { return m_elapsedMs + m_offsetMs; }

    void callAt(qint64 timeMs, QObject *context, std::function<void()> call) override
    {
        m_calls.push_back({timeMs, true, context, std::move(call)});
    }

    qint64 elapsedMs() const override { return m_elapsedMs; }

    void callAfter(qint64 ms, QObject *context, std::function<void()> call) override
    {
        m_calls.push_back({m_elapsedMs + ms, false, context, std::move(call)});
    }

    /// Makes the calls that fall due, each at its time, with the events in between delivered.
    void advance(qint64 ms)
    {
        const qint64 end = m_elapsedMs + ms;
        QCoreApplication::sendPostedEvents();
        for (auto next = earliest(); next != m_calls.end() && dueMs(*next) <= end;
             next = earliest()) {
            const Call due = *next;
            m_elapsedMs = std::max(m_elapsedMs, dueMs(due));
            m_calls.erase(next);
            if (due.context)
                due.call();
            QCoreApplication::sendPostedEvents();
        }
        m_elapsedMs = end;
    }

    /// Moves on without making the calls that fall due, as when the program is busy.
    void leap(qint64 ms) { m_elapsedMs += ms; }

    /// Sets the time of day, as a user does, by some milliseconds.
    void set(qint64 byMs) { m_offsetMs += byMs; }

private:
    struct Call
    {
        qint64 timeMs;
        bool isTimeOfDay;
        QPointer<QObject> context;
        std::function<void()> call;
    };

    // When a call is due, of what elapses.
    qint64 dueMs(const Call &call) const
    {
        return call.isTimeOfDay ? call.timeMs - m_offsetMs : call.timeMs;
    }

    std::list<Call>::iterator earliest()
    {
        return std::min_element(
            m_calls.begin(), m_calls.end(),
            [this](const Call &left, const Call &right) { return dueMs(left) < dueMs(right); });
    }

    qint64 m_elapsedMs = 0;
    qint64 m_offsetMs = StartMs;
    std::list<Call> m_calls; // in the order in which they were asked for
};

#endif
