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

    qint64 nowMs() const override { return m_nowMs; }

    void callAt(qint64 timeMs, QObject *context, std::function<void()> call) override
    {
        m_calls.push_back({timeMs, context, std::move(call)});
    }

    /// Makes the calls that fall due, each at its time, with the events in between delivered.
    void advance(qint64 ms)
    {
        const qint64 end = m_nowMs + ms;
        QCoreApplication::sendPostedEvents();
        for (auto next = earliest(); next != m_calls.end() && next->timeMs <= end;
             next = earliest()) {
            const Call due = *next;
            m_calls.erase(next);
            m_nowMs = std::max(m_nowMs, due.timeMs);
            if (due.context)
                due.call();
            QCoreApplication::sendPostedEvents();
        }
        m_nowMs = end;
    }

    /// Moves on without making the calls that fall due, as when the program is busy.
    void leap(qint64 ms) { m_nowMs += ms; }

private:
    struct Call
    {
        qint64 timeMs;
        QPointer<QObject> context;
        std::function<void()> call;
    };

    std::list<Call>::iterator earliest()
    {
        return std::min_element(
            m_calls.begin(), m_calls.end(),
            [](const Call &left, const Call &right) { return left.timeMs < right.timeMs; });
    }

    qint64 m_nowMs = StartMs;
    std::list<Call> m_calls; // in the order in which they were asked for
};

#endif
