#ifndef SCENARIOACTOR_H
#define SCENARIOACTOR_H

#include "Scenario.h"

class Clock;
class PluginSurface;
class ServerLink;
class SiteServer;
class TopologyPlugin;

/// Performs the actions of a scenario: those of the site at its server, those of the client at the
/// link and the topology, and those of the user at the plug-in.
class ScenarioActor
{
public:
    /// Whom the actions are done to. All must outlive the actor.
    struct Stage
    {
        SiteServer &server;
        ServerLink &link;
        TopologyPlugin &topology;
        PluginSurface &surface;
        const Clock &clock;
    };

    explicit ScenarioActor(const Stage &stage);

    void perform(const AnyScenarioAction &action);

private:
    void act(const ScenarioAction::SetCameraConnected &action);
    void act(const ScenarioAction::SetStationConnected &action);
    void act(const ScenarioAction::RemoveCamera &action);
    void act(const ScenarioAction::RemoveStation &action);
    void act(const ScenarioAction::RetrieveStates &action);
    void act(const ScenarioAction::SetServerConnected &action);
    void act(const ScenarioAction::SetResources &action);
    void act(const ScenarioAction::SetVolumeConnected &action);
    void act(const ScenarioAction::SetRecordedDays &action);
    void act(const ScenarioAction::RenameRecordingGroup &action);
    void act(const ScenarioAction::ReportReachingLimit &action);
    void act(const ScenarioAction::Snooze &action);
    void act(const ScenarioAction::ReconnectCameras &action);
    void act(const ScenarioAction::ReconnectSubstations &action);
    void act(const ScenarioAction::FocusStation &action);
    void act(const ScenarioAction::CheckSupport &action);

    Stage m_stage;
};

#endif
