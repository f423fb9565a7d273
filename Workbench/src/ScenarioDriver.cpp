#include "ScenarioDriver.h"

#include "Clock.h"

#include <algorithm>
#include <utility>

ScenarioDriver::ScenarioDriver(Scenario scenario, Clock &clock, QObject *parent)
    : QObject(parent)
    , m_scenario(std::move(scenario))
    , m_clock(clock)
{ }

void ScenarioDriver::start()
{
    m_startMs = m_clock.elapsedMs();
    m_next = 0;
    m_isHeld = false;
    m_isScreenshotDue = m_scenario.screenshotAtMs.has_value();
    m_clock.callAfter(0, this, [this] { advance(); });
}

void ScenarioDriver::hold()
{
    m_isHeld = true;
}

void ScenarioDriver::resume()
{
    if (!std::exchange(m_isHeld, false))
        return;
    m_startMs = m_clock.elapsedMs() - m_scenario.events[m_next - 1].atMs;
    m_clock.callAfter(0, this, [this] { advance(); });
}

std::optional<qint64> ScenarioDriver::elapsedMs() const
{
    if (!m_startMs)
        return std::nullopt;
    return m_isHeld ? m_scenario.events[m_next - 1].atMs : m_clock.elapsedMs() - *m_startMs;
}

void ScenarioDriver::advance()
{
    const std::vector<ScenarioEvent> &events = m_scenario.events;
    const qint64 elapsed = m_clock.elapsedMs() - *m_startMs;
    qint64 wakeUp = m_scenario.endMs;

    while (!m_isHeld && m_next < events.size() && events[m_next].atMs <= elapsed)
        Q_EMIT due(events[m_next++].action);
    if (m_isHeld)
        return;
    if (m_next < events.size())
        wakeUp = std::min(wakeUp, events[m_next].atMs);

    if (m_isScreenshotDue && *m_scenario.screenshotAtMs <= elapsed) {
        m_isScreenshotDue = false;
        Q_EMIT screenshotDue();
    }
    if (m_isScreenshotDue)
        wakeUp = std::min(wakeUp, *m_scenario.screenshotAtMs);

    if (elapsed >= m_scenario.endMs)
        Q_EMIT finished();
    else
        m_clock.callAfter(wakeUp - elapsed, this, [this] { advance(); });
}
