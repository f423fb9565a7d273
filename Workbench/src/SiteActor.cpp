#include "SiteActor.h"

#include "SiteServer.h"

SiteActor::SiteActor(SiteServer &server)
    : m_server(server)
{ }

void SiteActor::perform(const AnyScenarioAction &action)
{
    std::visit([this](const auto &one) { act(one); }, action);
}

void SiteActor::act(const ScenarioAction::SetCameraConnected &action)
{
    m_server.setCameraConnected(action.cameraId, action.connected);
}

void SiteActor::act(const ScenarioAction::SetStationConnected &action)
{
    m_server.setStationConnected(action.stationId, action.connected);
}

void SiteActor::act(const ScenarioAction::RemoveCamera &action)
{
    m_server.removeCamera(action.cameraId);
}

void SiteActor::act(const ScenarioAction::RemoveStation &action)
{
    m_server.removeStation(action.stationId);
}

void SiteActor::act(const ScenarioAction::SetResources &action)
{
    m_server.setResources(action.stationId, action.level);
}

void SiteActor::act(const ScenarioAction::SetVolumeConnected &action)
{
    m_server.setVolumeConnected(action.stationId, action.volumeId, action.connected);
}

void SiteActor::act(const ScenarioAction::SetRecordedDays &action)
{
    m_server.setRecordedDays(action.stationId, action.groupId, action.days);
}

void SiteActor::act(const ScenarioAction::RenameRecordingGroup &action)
{
    m_server.renameRecordingGroup(action.stationId, action.groupId, action.name);
}

void SiteActor::act(const ScenarioAction::ReportReachingLimit &action)
{
    m_server.reportReachingLimit(action.serverName, action.percentage);
}
