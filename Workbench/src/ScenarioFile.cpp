#include "ScenarioFile.h"

#include "JsonObject.h"
#include "ResourceReader.h"
#include "ServerNames.h"
#include "Site.h"
#include "Storm.h"

#include <QCoreApplication>
#include <QMap>
#include <QRandomGenerator>

#include <algorithm>
#include <cmath>

namespace {

constexpr double MaxSeconds = 86'400;
constexpr int MaxDays = 36'500;
constexpr double MaxCapacityPercentage = 1000;
constexpr double MaxChangesPerSecond = 100'000;
constexpr double MaxChanges = 10'000'000;

// Reads events one after another on a site from which it takes what they remove.
class Reader
{
    Q_DECLARE_TR_FUNCTIONS(ScenarioFile)

public:
    Reader(const Site &site, quint32 seed)
        : m_site(site)
        , m_chance(seed)
    { }

    /// One event, or the many of a storm.
    std::vector<ScenarioEvent> events(JsonObject &object);
    static qint64 milliseconds(JsonObject &object, const QString &key, double leastSeconds = 0);

private:
    using ActionReader = AnyScenarioAction (Reader::*)(JsonObject &);
    static const QMap<QString, ActionReader> &actionReaders();

    QString cameraId(JsonObject &object) const;
    QString stationId(JsonObject &object) const;
    [[noreturn]] static void failUnknown(const JsonObject &object, const QString &key,
                                         const QString &expected, const QString &id);

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

    Storm storm(JsonObject &object);
    static StormChange stormChange(JsonObject &object);
    QStringList stormCameras(JsonObject &object);
    QStringList camerasBelow(const QString &stationId) const;
    static void readPace(JsonObject &object, Storm &storm);

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

std::vector<ScenarioEvent> Reader::events(JsonObject &object)
{
    const QString doKey = QStringLiteral("do");
    const QString stormVerb = QStringLiteral("storm");
    const qint64 atMs = milliseconds(object, QStringLiteral("at"), m_earliest);
    m_earliest = static_cast<double>(atMs) / 1000.0;
    const QString verb = object.text(doKey);
    std::vector<ScenarioEvent> events;
    if (verb == stormVerb) {
        events = stormEvents(storm(object), atMs, m_chance);
    } else {
        const ActionReader reader = actionReaders().value(verb);
        if (!reader) {
            QStringList verbs = actionReaders().keys() << stormVerb;
            verbs.sort();
            failUnknown(object, doKey, tr("one of %1").arg(verbs.join(QStringLiteral(", "))), verb);
        }
        events.push_back({atMs, (this->*reader)(object)});
    }
    object.expectNoMore();
    return events;
}

qint64 Reader::milliseconds(JsonObject &object, const QString &key, double leastSeconds)
{
    return std::llround(object.number(key, leastSeconds, MaxSeconds) * 1000.0);
}

QString Reader::cameraId(JsonObject &object) const
{
    const QString key = QStringLiteral("camera");
    QString id = object.text(key);
    if (!m_site.findCamera(id))
        failUnknown(object, key, tr("the id of a camera of the site"), id);
    return id;
}

QString Reader::stationId(JsonObject &object) const
{
    const QString key = QStringLiteral("station");
    QString id = object.text(key);
    if (!m_site.findStation(id))
        failUnknown(object, key, tr("the id of a station of the site"), id);
    return id;
}

void Reader::failUnknown(const JsonObject &object, const QString &key, const QString &expected,
                         const QString &id)
{
    object.fail(key, expected, tr("\"%1\"").arg(id));
}

template <bool connected> AnyScenarioAction Reader::setCamera(JsonObject &object)
{
    return ScenarioAction::SetCameraConnected{cameraId(object), connected};
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
        failUnknown(object, key, tr("the id of a volume of station \"%1\"").arg(station), volume);
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
    const QString id = cameraId(object);
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
        failUnknown(object, QStringLiteral("station"),
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
        failUnknown(object, key, tr("the id of a recording group of station \"%1\"").arg(stationId),
                    group);
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
        failUnknown(object, key, tr("the id of a camera or station of the site"), id);
    const int type = isCamera ? ServerNames::CameraDisconnected : ServerNames::StationDisconnected;
    return ScenarioAction::Snooze{id, type, milliseconds(object, QStringLiteral("seconds"), 1)};
}

AnyScenarioAction Reader::awaitError(JsonObject &object)
{
    return ScenarioAction::AwaitError{object.text(QStringLiteral("listed"))};
}

Storm Reader::storm(JsonObject &object)
{
    Storm storm;
    storm.change = stormChange(object);
    storm.cameraIds = stormCameras(object);
    readPace(object, storm);
    return storm;
}

StormChange Reader::stormChange(JsonObject &object)
{
    static const QMap<QString, StormChange> changes{
        {QStringLiteral("down"), StormChange::Down},
        {QStringLiteral("up"), StormChange::Up},
        {QStringLiteral("flap"), StormChange::Flap},
    };
    const QString key = QStringLiteral("change");
    const QString change = object.text(key);
    if (!changes.contains(change))
        failUnknown(object, key, tr("one of %1").arg(changes.keys().join(QStringLiteral(", "))),
                    change);
    return changes.value(change);
}

QStringList Reader::stormCameras(JsonObject &object)
{
    const QString stationKey = QStringLiteral("station");
    const QString countKey = QStringLiteral("cameras");
    const bool hasStation = object.has(stationKey);
    const QStringList all = camerasBelow(hasStation ? stationId(object) : QString());
    if (all.isEmpty())
        object.fail(stationKey, tr("a station with cameras"), tr("one without"));
    const int most = static_cast<int>(all.size());
    return chooseCameras(all, object.has(countKey) ? object.wholeNumber(countKey, 1, most) : most,
                         m_chance);
}

// An empty id means the whole site.
QStringList Reader::camerasBelow(const QString &stationId) const
{
    Site below;
    below.stations = stationId.isEmpty() ? m_site.stations
                                         : std::vector<Station>{*m_site.findStation(stationId)};
    QStringList ids;
    below.forEachStation([&ids](const Station &station) {
        for (const Camera &camera : station.cameras)
            ids.append(camera.id);
    });
    return ids;
}

// Cameras that change once each need no more than one of the two figures.
void Reader::readPace(JsonObject &object, Storm &storm)
{
    const QString secondsKey = QStringLiteral("seconds");
    const QString rateKey = QStringLiteral("rate");
    const bool isFlapping = storm.change == StormChange::Flap;
    const bool hasRate = object.has(rateKey);
    const double rate =
        isFlapping || hasRate ? object.number(rateKey, 0.01, MaxChangesPerSecond) : 0;
    storm.changeCount = static_cast<int>(storm.cameraIds.size());
    if (isFlapping) {
        storm.durationMs = milliseconds(object, secondsKey, 0.1);
        const double changes = std::ceil(static_cast<double>(storm.durationMs) / 1000.0 * rate);
        if (changes > MaxChanges)
            object.fail(rateKey, tr("at most %1 changes in all").arg(static_cast<int>(MaxChanges)),
                        QString::number(changes, 'f', 0));
        storm.changeCount = static_cast<int>(changes);
    } else if (hasRate) {
        if (object.has(secondsKey))
            object.fail(secondsKey, tr("nothing beside \"rate\""), tr("a duration"));
        storm.durationMs = std::llround(storm.changeCount / rate * 1000.0);
    } else if (object.has(secondsKey)) {
        storm.durationMs = milliseconds(object, secondsKey);
    }
}

bool isEarlier(const ScenarioEvent &left, const ScenarioEvent &right)
{
    return left.atMs < right.atMs;
}

} // namespace

Scenario readScenarioFile(const QString &fileName, const Site &site, quint32 seed)
{
    const QString screenshotKey = QStringLiteral("screenshotAt");
    const QString endKey = QStringLiteral("endAt");
    JsonObject file = JsonObject::fromFile(fileName);
    Scenario scenario;
    Reader reader(site, seed);
    for (JsonObject &entry : file.requiredObjects(QStringLiteral("events"))) {
        const std::vector<ScenarioEvent> events = reader.events(entry);
        scenario.events.insert(scenario.events.end(), events.begin(), events.end());
    }
    std::stable_sort(scenario.events.begin(), scenario.events.end(), isEarlier);
    if (!scenario.events.empty())
        scenario.endMs = scenario.events.back().atMs;
    if (file.has(screenshotKey)) {
        scenario.screenshotAtMs = Reader::milliseconds(file, screenshotKey);
        scenario.endMs = std::max(scenario.endMs, *scenario.screenshotAtMs);
    }
    if (file.has(endKey))
        scenario.endMs =
            Reader::milliseconds(file, endKey, static_cast<double>(scenario.endMs) / 1000.0);
    file.expectNoMore();
    return scenario;
}
