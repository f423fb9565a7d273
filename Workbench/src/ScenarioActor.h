#ifndef SCENARIOACTOR_H
#define SCENARIOACTOR_H

#include "Scenario.h"

class Clock;
class PluginSurface;
class ServerLink;
class SiteActor;
class TopologyPlugin;

/// Performs the actions of a scenario: those of the client at the link and the topology, and those
/// of the user at the plug-in. Those of the site are left to a SiteActor, where the site's server
/// is in this process; without one they happen elsewhere, if at all.
class ScenarioActor
{
public:
    /// Whom the actions are done to. All must outlive the actor.
    struct Stage
    {
        SiteActor *site; ///< or null
        ServerLink &link;
        TopologyPlugin &topology;
        PluginSurface &surface;
        const Clock &clock;
    };

    explicit ScenarioActor(const Stage &stage);

    void perform(const AnyScenarioAction &action);

private:
    template <typename SiteAction> void act(const SiteAction &) { }
    void act(const ScenarioAction::RetrieveStates &action);
    void act(const ScenarioAction::SetServerConnected &action);
    void act(const ScenarioAction::Snooze &action);
    void act(const ScenarioAction::ReconnectCameras &action);
    void act(const ScenarioAction::ReconnectSubstations &action);
    void act(const ScenarioAction::FocusStation &action);
    void act(const ScenarioAction::CheckSupport &action);

    Stage m_stage;
};

#endif
