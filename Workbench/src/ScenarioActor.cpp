#include "ScenarioActor.h"

#include "Clock.h"
#include "PluginSurface.h"
#include "ServerLink.h"
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
    std::visit([this](const auto &one) { act(one); }, action);
}

void ScenarioActor::act(const ScenarioAction::SetCameraConnected &action)
{
    m_stage.server.setCameraConnected(action.cameraId, action.connected);
}

void ScenarioActor::act(const ScenarioAction::SetStationConnected &action)
{
    m_stage.server.setStationConnected(action.stationId, action.connected);
}

void ScenarioActor::act(const ScenarioAction::RemoveCamera &action)
{
    m_stage.server.removeCamera(action.cameraId);
}

void ScenarioActor::act(const ScenarioAction::RemoveStation &action)
{
    m_stage.server.removeStation(action.stationId);
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

void ScenarioActor::act(const ScenarioAction::SetResources &action)
{
    m_stage.server.setResources(action.stationId, action.level);
}

void ScenarioActor::act(const ScenarioAction::SetVolumeConnected &action)
{
    m_stage.server.setVolumeConnected(action.stationId, action.volumeId, action.connected);
}

void ScenarioActor::act(const ScenarioAction::SetRecordedDays &action)
{
    m_stage.server.setRecordedDays(action.stationId, action.groupId, action.days);
}

void ScenarioActor::act(const ScenarioAction::RenameRecordingGroup &action)
{
    m_stage.server.renameRecordingGroup(action.stationId, action.groupId, action.name);
}

void ScenarioActor::act(const ScenarioAction::ReportReachingLimit &action)
{
    m_stage.server.reportReachingLimit(action.serverName, action.percentage);
}

void ScenarioActor::act(const ScenarioAction::Snooze &action)
{
    m_stage.surface.setSnooze(action.nodeId, endSeconds(m_stage.clock.nowMs(), action.durationMs),
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
