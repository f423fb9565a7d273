#ifndef SCENARIODRIVER_H
#define SCENARIODRIVER_H

#include "Scenario.h"

#include <QObject>

class Clock;

/// Tells when each event of a scenario is due.
///
/// The times are those of the clock. On a clock that runs fast they pass quickly, while whatever
/// runs on timers of its own, such as the plug-in's walk five seconds after the states were
/// retrieved, takes as long as ever and so falls later in the scenario.
class ScenarioDriver : public QObject
{
    Q_OBJECT

public:
    /// @param clock must outlive the driver
    ScenarioDriver(Scenario scenario, Clock &clock, QObject *parent = nullptr);

    /// Plays the scenario from its start, which is now. Not to be called again before finished().
    void start();

    /// Makes the scenario's time stand still, from within due(): what comes next waits.
    void hold();

    /// How far the scenario is, in milliseconds from its start; nothing before that.
    std::optional<qint64> elapsedMs() const;

    /// When it ends, in milliseconds from its start.
    qint64 endMs() const { return m_scenario.endMs; }

    /// Lets time go on from where hold() stopped it. Without a hold() nothing happens.
    void resume();

Q_SIGNALS:
    void due(const AnyScenarioAction &action);
    /// The dashboard is worth a picture: after the events that are due at the same time.
    void screenshotDue();
    void finished();

private:
    void advance();

    const Scenario m_scenario;
    Clock &m_clock;
    std::optional<qint64> m_startMs; // on the clock that elapses; nothing before the start
    std::size_t m_next = 0;          // event
    bool m_isScreenshotDue = false;
    bool m_isHeld = false;
};

#endif
