#include "ScenarioFile.h"

#include "JsonObject.h"
#include "ResourceReader.h"
#include "ScenarioValues.h"
#include "ServerNames.h"
#include "Site.h"
#include "StormReader.h"

#include <QCoreApplication>
#include <QMap>
#include <QRandomGenerator>

#include <algorithm>
#include <iterator>

namespace {

constexpr int MaxDays = 36'500;
constexpr double MaxCapacityPercentage = 1000;
// All storms together; a few hundred bytes each.
constexpr qsizetype MaxEvents = 10'000'000;

// Reads events one after another on a site from which it takes what they remove.
class Reader
{
    Q_DECLARE_TR_FUNCTIONS(ScenarioFile)

public:
    Reader(const Site &site, quint32 seed)
        : m_site(site)
        , m_chance(seed)
    { }

    /// Appends one event, or the many of a storm.
    void read(JsonObject &object, std::vector<ScenarioEvent> &events);

private:
    using ActionReader = AnyScenarioAction (Reader::*)(JsonObject &);
    static const QMap<QString, ActionReader> &actionReaders();

    QString stationId(JsonObject &object) const
    {
        return ScenarioValues::stationId(object, m_site);
    }

    template <bool connected> AnyScenarioAction setCamera(JsonObject &object);
    template <bool connected> AnyScenarioAction setStation(JsonObject &object);
    template <bool connected> AnyScenarioAction setServer(JsonObject &object);
    template <bool connected> AnyScenarioAction setVolume(JsonObject &object);
    template <typename Action> AnyScenarioAction bare(JsonObject &object);
    template <typename Action> AnyScenarioAction onStation(JsonObject &object);
    AnyScenarioAction removeCamera(JsonObject &object);
    AnyScenarioAction removeStation(JsonObject &object);
    AnyScenarioAction retrieveStates(JsonObject &object);
    AnyScenarioAction setResources(JsonObject &object);
    AnyScenarioAction setRecordedDays(JsonObject &object);
    AnyScenarioAction renameRecordingGroup(JsonObject &object);
    AnyScenarioAction reportReachingLimit(JsonObject &object);
    AnyScenarioAction snooze(JsonObject &object);
    AnyScenarioAction awaitError(JsonObject &object);
    QString groupId(JsonObject &object, const QString &stationId);

    Site m_site;
    QRandomGenerator m_chance;
    double m_earliest = 0; // seconds
};

const QMap<QString, Reader::ActionReader> &Reader::actionReaders()
{
    using namespace ScenarioAction;
    static const QMap<QString, ActionReader> readers{
        {QStringLiteral("cameraDown"), &Reader::setCamera<false>},
        {QStringLiteral("cameraUp"), &Reader::setCamera<true>},
        {QStringLiteral("stationDown"), &Reader::setStation<false>},
        {QStringLiteral("stationUp"), &Reader::setStation<true>},
        {QStringLiteral("cameraRemoved"), &Reader::removeCamera},
        {QStringLiteral("stationRemoved"), &Reader::removeStation},
        {QStringLiteral("camStatusRetrieved"), &Reader::retrieveStates},
        {QStringLiteral("serverDisconnect"), &Reader::setServer<false>},
        {QStringLiteral("serverReconnect"), &Reader::setServer<true>},
        {QStringLiteral("resources"), &Reader::setResources},
        {QStringLiteral("volumeLost"), &Reader::setVolume<false>},
        {QStringLiteral("volumeBack"), &Reader::setVolume<true>},
        {QStringLiteral("recordingDays"), &Reader::setRecordedDays},
        {QStringLiteral("recordingGroupRenamed"), &Reader::renameRecordingGroup},
        {QStringLiteral("serverReachingLimit"), &Reader::reportReachingLimit},
        {QStringLiteral("snooze"), &Reader::snooze},
        {QStringLiteral("reconnectCameras"), &Reader::bare<ReconnectCameras>},
        {QStringLiteral("reconnectSubstations"), &Reader::bare<ReconnectSubstations>},
        {QStringLiteral("focusStation"), &Reader::onStation<FocusStation>},
        {QStringLiteral("checkSupport"), &Reader::onStation<CheckSupport>},
        {QStringLiteral("until"), &Reader::awaitError},
    };
    return readers;
}

void Reader::read(JsonObject &object, std::vector<ScenarioEvent> &events)
{
    const QString doKey = QStringLiteral("do");
    const QString stormVerb = QStringLiteral("storm");
    const qint64 atMs = ScenarioValues::milliseconds(object, QStringLiteral("at"), m_earliest);
    m_earliest = static_cast<double>(atMs) / 1000.0;
    const QString verb = object.text(doKey);
    if (verb == stormVerb) {
        const auto left = qMax(qsizetype(0), MaxEvents - std::ssize(events));
        appendStorm(readStorm(object, m_site, m_chance, static_cast<int>(left)), atMs, m_chance,
                    events);
    } else {
        const ActionReader reader = actionReaders().value(verb);
        if (!reader) {
            QStringList verbs = actionReaders().keys() << stormVerb;
            verbs.sort();
            ScenarioValues::fail(object, doKey,
                                 tr("one of %1").arg(verbs.join(QStringLiteral(", "))), verb);
        }
        events.push_back({atMs, (this->*reader)(object)});
    }
    object.expectNoMore();
}

template <bool connected> AnyScenarioAction Reader::setCamera(JsonObject &object)
{
    return ScenarioAction::SetCameraConnected{ScenarioValues::cameraId(object, m_site), connected};
}

template <bool connected> AnyScenarioAction Reader::setStation(JsonObject &object)
{
    return ScenarioAction::SetStationConnected{stationId(object), connected};
}

template <bool connected> AnyScenarioAction Reader::setServer(JsonObject &)
{
    return ScenarioAction::SetServerConnected{connected};
}

template <bool connected> AnyScenarioAction Reader::setVolume(JsonObject &object)
{
    const QString key = QStringLiteral("volume");
    const QString station = stationId(object);
    const QString volume = object.text(key);
    if (!m_site.findStation(station)->findVolume(volume))
        ScenarioValues::fail(object, key, tr("the id of a volume of station \"%1\"").arg(station),
                             volume);
    return ScenarioAction::SetVolumeConnected{station, volume, connected};
}

template <typename Action> AnyScenarioAction Reader::bare(JsonObject &)
{
    return Action{};
}

template <typename Action> AnyScenarioAction Reader::onStation(JsonObject &object)
{
    return Action{stationId(object)};
}

AnyScenarioAction Reader::removeCamera(JsonObject &object)
{
    const QString id = ScenarioValues::cameraId(object, m_site);
    m_site.removeCamera(id);
    return ScenarioAction::RemoveCamera{id};
}

AnyScenarioAction Reader::removeStation(JsonObject &object)
{
    const QString id = stationId(object);
    m_site.removeStation(id);
    return ScenarioAction::RemoveStation{id};
}

AnyScenarioAction Reader::retrieveStates(JsonObject &object)
{
    return ScenarioAction::RetrieveStates{object.flag(QStringLiteral("success"), true)};
}

AnyScenarioAction Reader::setResources(JsonObject &object)
{
    const QString id = stationId(object);
    if (id == ThisMachineId || !m_site.findStation(id)->supportsMonitoring)
        ScenarioValues::fail(object, QStringLiteral("station"),
                             tr("a station that supports monitoring, other than this machine"), id);
    return ScenarioAction::SetResources{id, readResources(object)};
}

AnyScenarioAction Reader::setRecordedDays(JsonObject &object)
{
    const QString station = stationId(object);
    const QString group = groupId(object, station);
    return ScenarioAction::SetRecordedDays{station, group,
                                           object.wholeNumber(QStringLiteral("days"), 0, MaxDays)};
}

AnyScenarioAction Reader::renameRecordingGroup(JsonObject &object)
{
    const QString station = stationId(object);
    const QString group = groupId(object, station);
    return ScenarioAction::RenameRecordingGroup{station, group,
                                                object.text(QStringLiteral("name"))};
}

QString Reader::groupId(JsonObject &object, const QString &stationId)
{
    const QString key = QStringLiteral("group");
    QString group = object.text(key);
    if (!m_site.findStation(stationId)->findRecordingGroup(group))
        ScenarioValues::fail(
            object, key, tr("the id of a recording group of station \"%1\"").arg(stationId), group);
    return group;
}

AnyScenarioAction Reader::reportReachingLimit(JsonObject &object)
{
    const QString name = object.text(QStringLiteral("server"));
    return ScenarioAction::ReportReachingLimit{
        name, object.number(QStringLiteral("percentage"), 0, MaxCapacityPercentage)};
}

AnyScenarioAction Reader::snooze(JsonObject &object)
{
    const QString key = QStringLiteral("node");
    const QString id = object.text(key);
    const bool isCamera = m_site.findCamera(id);
    if (!isCamera && !m_site.findStation(id))
        ScenarioValues::fail(object, key, tr("the id of a camera or station of the site"), id);
    const int type = isCamera ? ServerNames::CameraDisconnected : ServerNames::StationDisconnected;
    return ScenarioAction::Snooze{
        id, type, ScenarioValues::milliseconds(object, QStringLiteral("seconds"), 1)};
}

AnyScenarioAction Reader::awaitError(JsonObject &object)
{
    return ScenarioAction::AwaitError{object.text(QStringLiteral("listed"))};
}

// Only storms overlap with what comes after them. Sorting takes half as much memory again.
void sortByTime(std::vector<ScenarioEvent> &events)
{
    const auto isEarlier = [](const ScenarioEvent &left, const ScenarioEvent &right) {
        return left.atMs < right.atMs;
    };
    if (!std::is_sorted(events.begin(), events.end(), isEarlier))
        std::stable_sort(events.begin(), events.end(), isEarlier);
}

} // namespace

Scenario readScenarioFile(const QString &fileName, const Site &site, quint32 seed)
{
    const QString screenshotKey = QStringLiteral("screenshotAt");
    const QString endKey = QStringLiteral("endAt");
    JsonObject file = JsonObject::fromFile(fileName);
    Scenario scenario;
    Reader reader(site, seed);
    for (JsonObject &entry : file.requiredObjects(QStringLiteral("events")))
        reader.read(entry, scenario.events);
    sortByTime(scenario.events);
    if (!scenario.events.empty())
        scenario.endMs = scenario.events.back().atMs;
    if (file.has(screenshotKey)) {
        scenario.screenshotAtMs = ScenarioValues::milliseconds(file, screenshotKey);
        scenario.endMs = std::max(scenario.endMs, *scenario.screenshotAtMs);
    }
    if (file.has(endKey))
        scenario.endMs = ScenarioValues::milliseconds(file, endKey,
                                                      static_cast<double>(scenario.endMs) / 1000.0);
    file.expectNoMore();
    return scenario;
}
