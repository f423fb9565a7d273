#include "ScenarioFile.h"

#include "JsonObject.h"
#include "ResourceReader.h"
#include "ServerNames.h"
#include "Site.h"

#include <QCoreApplication>
#include <QMap>

#include <algorithm>
#include <cmath>

namespace {

constexpr double MaxSeconds = 86'400;
constexpr int MaxDays = 36'500;
constexpr double MaxCapacityPercentage = 1000;

// Reads events one after another on a site from which it takes what they remove.
class Reader
{
    Q_DECLARE_TR_FUNCTIONS(ScenarioFile)

public:
    explicit Reader(const Site &site)
        : m_site(site)
    { }

    ScenarioEvent event(JsonObject &object);
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
    QString groupId(JsonObject &object, const QString &stationId);

    Site m_site;
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
    };
    return readers;
}

ScenarioEvent Reader::event(JsonObject &object)
{
    const QString doKey = QStringLiteral("do");
    ScenarioEvent event;
    event.atMs = milliseconds(object, QStringLiteral("at"), m_earliest);
    m_earliest = static_cast<double>(event.atMs) / 1000.0;
    const QString verb = object.text(doKey);
    const ActionReader reader = actionReaders().value(verb);
    if (!reader)
        failUnknown(object, doKey,
                    tr("one of %1").arg(actionReaders().keys().join(QStringLiteral(", "))), verb);
    event.action = (this->*reader)(object);
    object.expectNoMore();
    return event;
}

qint64 Reader::milliseconds(JsonObject &object, const QString &key, double leastSeconds)
{
    return std::llround(object.number(key, leastSeconds, MaxSeconds) * 1000.0);
}

QString Reader::cameraId(JsonObject &object) const
{
    const QString key = QStringLiteral("camera");
    const QString id = object.text(key);
    if (!m_site.findCamera(id))
        failUnknown(object, key, tr("the id of a camera of the site"), id);
    return id;
}

QString Reader::stationId(JsonObject &object) const
{
    const QString key = QStringLiteral("station");
    const QString id = object.text(key);
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
    const QString group = object.text(key);
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

} // namespace

Scenario readScenarioFile(const QString &fileName, const Site &site)
{
    const QString screenshotKey = QStringLiteral("screenshotAt");
    const QString endKey = QStringLiteral("endAt");
    JsonObject file = JsonObject::fromFile(fileName);
    Scenario scenario;
    Reader reader(site);
    for (JsonObject &entry : file.requiredObjects(QStringLiteral("events"))) {
        scenario.events.push_back(reader.event(entry));
        scenario.endMs = scenario.events.back().atMs;
    }
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
