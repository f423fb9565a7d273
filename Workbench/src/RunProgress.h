#ifndef RUNPROGRESS_H
#define RUNPROGRESS_H

#include "StatusLine.h"

#include <QObject>
#include <QTimer>

class Clock;

/// Shows each second how far a scenario has been played, until the object is gone.
class RunProgress : public QObject
{
    Q_OBJECT

public:
    /// Starts now.
    ///
    /// @param clock gives the time of the scenario; it must outlive the object
    /// @param endMs when the scenario ends, from its start
    RunProgress(StatusLine line, const Clock &clock, qint64 endMs);
    ~RunProgress() override;

    void show() const;

private:
    const StatusLine m_line;
    const Clock &m_clock;
    const qint64 m_startMs;
    const qint64 m_endMs;
    QTimer m_timer;
};

#endif
