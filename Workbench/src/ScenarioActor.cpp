#include "ScenarioActor.h"

#include "Clock.h"
#include "PluginSurface.h"
#include "ServerLink.h"
#include "SiteActor.h"
#include "TopologyPlugin.h"

namespace {

// The end of a snooze in whole seconds, rounded up so that it does not fall short.
qint64 endSeconds(qint64 nowMs, qint64 durationMs)
{
    constexpr qint64 MsPerSecond = 1000;
    return (nowMs + durationMs + MsPerSecond - 1) / MsPerSecond;
}

} // namespace

ScenarioActor::ScenarioActor(const Stage &stage)
    : m_stage(stage)
{ }

void ScenarioActor::perform(const AnyScenarioAction &action)
{
    if (m_stage.site)
        m_stage.site->perform(action);
    std::visit([this](const auto &one) { act(one); }, action);
}

void ScenarioActor::act(const ScenarioAction::RetrieveStates &action)
{
    m_stage.topology.announceStatesRetrieved(action.success);
}

void ScenarioActor::act(const ScenarioAction::SetServerConnected &action)
{
    if (action.connected)
        m_stage.link.open();
    else
        m_stage.link.close();
}

void ScenarioActor::act(const ScenarioAction::Snooze &action)
{
    const qint64 serverMs = m_stage.clock.nowMs() + m_stage.link.clockAheadMs();
    m_stage.surface.setSnooze(action.nodeId, endSeconds(serverMs, action.durationMs),
                              action.errorType);
}

void ScenarioActor::act(const ScenarioAction::ReconnectCameras &)
{
    m_stage.surface.reconnectCameras();
}

void ScenarioActor::act(const ScenarioAction::ReconnectSubstations &)
{
    m_stage.surface.reconnectSubstations();
}

void ScenarioActor::act(const ScenarioAction::FocusStation &action)
{
    m_stage.surface.focusStation(action.stationId);
}

void ScenarioActor::act(const ScenarioAction::CheckSupport &action)
{
    m_stage.surface.checkSupport(action.stationId);
}
