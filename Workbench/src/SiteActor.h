#ifndef SITEACTOR_H
#define SITEACTOR_H

#include "Scenario.h"

class SiteServer;

/// Performs those actions of a scenario that happen at the site, and leaves out what clients and
/// their users do.
class SiteActor
{
public:
    /// @param server must outlive the actor
    explicit SiteActor(SiteServer &server);

    void perform(const AnyScenarioAction &action);

private:
    template <typename OtherAction> void act(const OtherAction &) { }
    void act(const ScenarioAction::SetCameraConnected &action);
    void act(const ScenarioAction::SetStationConnected &action);
    void act(const ScenarioAction::RemoveCamera &action);
    void act(const ScenarioAction::RemoveStation &action);
    void act(const ScenarioAction::SetResources &action);
    void act(const ScenarioAction::SetVolumeConnected &action);
    void act(const ScenarioAction::SetRecordedDays &action);
    void act(const ScenarioAction::RenameRecordingGroup &action);
    void act(const ScenarioAction::ReportReachingLimit &action);

    SiteServer &m_server;
};

#endif
