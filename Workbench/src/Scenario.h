#ifndef SCENARIO_H
#define SCENARIO_H

#include "ResourceReport.h"

#include <QString>

#include <optional>
#include <variant>
#include <vector>

/// What can happen in a scenario. Ids are whole ids, "station/camera".
namespace ScenarioAction {

struct SetCameraConnected
{
    QString cameraId;
    bool connected;
};

struct SetStationConnected
{
    QString stationId;
    bool connected;
};

struct RemoveCamera
{
    QString cameraId;
};

struct RemoveStation
{
    QString stationId;
};

/// The client has learnt the states of all nodes, which makes the plug-in walk through them.
struct RetrieveStates
{
    bool success;
};

struct SetServerConnected
{
    bool connected;
};

struct SetResources
{
    QString stationId;
    ResourceReport level;
};

struct SetVolumeConnected
{
    QString stationId;
    QString volumeId;
    bool connected;
};

struct SetRecordedDays
{
    QString stationId;
    QString groupId;
    int days;
};

struct RenameRecordingGroup
{
    QString stationId;
    QString groupId;
    QString name;
};

struct ReportReachingLimit
{
    QString serverName;
    double percentage;
};

/// The user snoozes a node's disconnection.
struct Snooze
{
    QString nodeId;
    int errorType; ///< ServerNames::CameraDisconnected or StationDisconnected
    qint64 durationMs;
};

/// The user has all cameras reconnected that are listed.
struct ReconnectCameras
{ };

/// The user has all stations reconnected that are listed.
struct ReconnectSubstations
{ };

/// The user looks at a station.
struct FocusStation
{
    QString stationId;
};

/// The user interface asks whether a station supports monitoring.
struct CheckSupport
{
    QString stationId;
};

/// The scenario's time stands still until an error is listed.
struct AwaitError
{
    QString key; ///< the error's only identity
};

} // namespace ScenarioAction

using AnyScenarioAction = std::variant<
    ScenarioAction::SetCameraConnected, ScenarioAction::SetStationConnected,
    ScenarioAction::RemoveCamera, ScenarioAction::RemoveStation, ScenarioAction::RetrieveStates,
    ScenarioAction::SetServerConnected, ScenarioAction::SetResources,
    ScenarioAction::SetVolumeConnected, ScenarioAction::SetRecordedDays,
    ScenarioAction::RenameRecordingGroup, ScenarioAction::ReportReachingLimit,
    ScenarioAction::Snooze, ScenarioAction::ReconnectCameras, ScenarioAction::ReconnectSubstations,
    ScenarioAction::FocusStation, ScenarioAction::CheckSupport, ScenarioAction::AwaitError>;

/// Something that happens at a time, counted in milliseconds from the start of the scenario.
struct ScenarioEvent
{
    qint64 atMs = 0;
    AnyScenarioAction action;
};

/// A course of events, in the order of their times.
struct Scenario
{
    std::vector<ScenarioEvent> events;
    std::optional<qint64> screenshotAtMs; ///< when the dashboard is worth a picture
    qint64 endMs = 0;                     ///< not before the last event
};

#endif
