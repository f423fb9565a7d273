#include "FuzzTarget.h"
#include "InputError.h"
#include "InputFile.h"
#include "Invariants.h"
#include "ScenarioFile.h"
#include "SiteFile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <optional>

// Scenarios that a user wrote, for the site that comes with the Workbench. A wrong one is refused
// with a message that names the file.

namespace {

constexpr qsizetype MostChangesOfAStorm = 10'000'000;

const Site &defaultSite()
{
    static const Site site = readSiteFile(QStringLiteral(DEFAULT_SITE));
    return site;
}

std::optional<Scenario> read(const QByteArray &text)
{
    static const InputFile file(QStringLiteral("scenario.json"));
    file.write(text);
    try {
        return readScenarioFile(file.path(), defaultSite());
    } catch (const InputError &error) {
        require(error.message().contains(QLatin1String("scenario.json")),
                "a message names the file");
        return std::nullopt;
    }
}

/// Requires of each action that it can be done on what earlier ones have left of the site.
class ActionCheck
{
public:
    // A storm may outlast its cameras.
    void operator()(const ScenarioAction::SetCameraConnected &action) const
    {
        require(defaultSite().findCamera(action.cameraId), "a camera is the site's");
    }
    void operator()(const ScenarioAction::RemoveCamera &action)
    {
        require(m_site.removeCamera(action.cameraId), "a camera can be removed");
    }
    void operator()(const ScenarioAction::RemoveStation &action)
    {
        require(m_site.removeStation(action.stationId), "a station can be removed");
    }
    void operator()(const ScenarioAction::SetVolumeConnected &action)
    {
        require(station(action.stationId).findVolume(action.volumeId), "a volume is the station's");
    }
    void operator()(const ScenarioAction::SetRecordedDays &action)
    {
        require(station(action.stationId).findRecordingGroup(action.groupId),
                "a group is the station's");
        require(action.days >= 0, "days are counted from 0");
    }
    void operator()(const ScenarioAction::RenameRecordingGroup &action)
    {
        require(station(action.stationId).findRecordingGroup(action.groupId),
                "a group is the station's");
    }
    void operator()(const ScenarioAction::Snooze &action)
    {
        require(m_site.findCamera(action.nodeId) || m_site.findStation(action.nodeId),
                "a snoozed node is the site's");
        require(action.durationMs >= 1000, "a snooze takes a second at least");
    }
    template <typename StationAction>
    auto operator()(const StationAction &action) -> decltype(action.stationId, void())
    {
        station(action.stationId);
    }
    void operator()(const ScenarioAction::RetrieveStates &) { }
    void operator()(const ScenarioAction::SetServerConnected &) { }
    void operator()(const ScenarioAction::ReportReachingLimit &) { }
    void operator()(const ScenarioAction::ReconnectCameras &) { }
    void operator()(const ScenarioAction::ReconnectSubstations &) { }
    void operator()(const ScenarioAction::AwaitError &) { }

private:
    Station &station(const QString &id)
    {
        Station *const station = m_site.findStation(id);
        require(station, "a station is the site's");
        return *station;
    }

    Site m_site = defaultSite();
};

qsizetype entriesIn(const QByteArray &text)
{
    return QJsonDocument::fromJson(text).object().value(QLatin1String("events")).toArray().size();
}

void requireCourse(const Scenario &scenario)
{
    ActionCheck check;
    qint64 time = 0;
    for (const ScenarioEvent &event : scenario.events) {
        require(event.atMs >= time, "events are in the order of their times");
        time = event.atMs;
        std::visit(check, event.action);
    }
    require(scenario.endMs >= time, "a scenario does not end before its last event");
    require(!scenario.screenshotAtMs
                || (*scenario.screenshotAtMs >= 0 && *scenario.screenshotAtMs <= scenario.endMs),
            "the picture is taken while the scenario plays");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const std::optional<Scenario> scenario = read(text);
    if (!scenario)
        return 0;
    require(static_cast<qsizetype>(scenario->events.size())
                <= entriesIn(text) * MostChangesOfAStorm,
            "storms are bounded");
    requireCourse(*scenario);
    return 0;
}
