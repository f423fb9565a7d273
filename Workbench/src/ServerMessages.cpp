#include "ServerMessages.h"

#include "Message.h"
#include "ServerNames.h"
#include "SiteJson.h"

#include <QJsonArray>

#include <limits>

using namespace ServerMessage;

namespace {

// The last second of the year 9999.
constexpr double LatestEndSeconds = 253'402'300'799;
constexpr double LatestTimeMs = LatestEndSeconds * 1000;

const QString WelcomeType = QStringLiteral("welcome");
const QString RefusedType = QStringLiteral("refused");
const QString ResultType = QStringLiteral("result");
const QString NodeStatusType = QStringLiteral("nodeStatus");
const QString CameraRemovedType = QStringLiteral("cameraRemoved");
const QString StationRemovedType = QStringLiteral("stationRemoved");
const QString StorageChangedType = QStringLiteral("storageChanged");
const QString SnoozedType = QStringLiteral("snoozed");
const QString SnoozeEndedType = QStringLiteral("snoozeEnded");
const QString EventType = QStringLiteral("event");

const QString SiteKey = QStringLiteral("site");
const QString ReasonKey = QStringLiteral("reason");
const QString FinalKey = QStringLiteral("final");
const QString IdKey = QStringLiteral("id");
const QString CodeKey = QStringLiteral("code");
const QString DataKey = QStringLiteral("data");
const QString CameraKey = QStringLiteral("camera");
const QString StationKey = QStringLiteral("station");
const QString ConnectedKey = QStringLiteral("connected");
const QString NameKey = QStringLiteral("name");
const QString SourceKey = QStringLiteral("source");
const QString SnoozeKey = QStringLiteral("snooze");
const QString SnoozesKey = QStringLiteral("snoozes");
const QString TimeKey = QStringLiteral("time");

Snooze readSnooze(JsonObject &object)
{
    Snooze snooze{
        object.text(ServerNames::KeyNodeId),
        object.wholeNumber(ServerNames::KeyType, ServerNames::CameraDisconnected,
                           ServerNames::StationDisconnected),
        static_cast<qint64>(object.number(ServerNames::KeyTimestamp, 0, LatestEndSeconds))};
    object.expectNoMore();
    return snooze;
}

std::vector<Snooze> readSnoozes(JsonObject &object)
{
    std::vector<Snooze> snoozes;
    for (JsonObject &entry : object.requiredObjects(SnoozesKey))
        snoozes.push_back(readSnooze(entry));
    return snoozes;
}

QJsonObject toJson(const Snooze &snooze)
{
    return {{ServerNames::KeyNodeId, snooze.nodeId},
            {ServerNames::KeyType, snooze.errorType},
            {ServerNames::KeyTimestamp, snooze.endSeconds}};
}

void writeSnoozes(const std::vector<Snooze> &snoozes, QJsonObject &object)
{
    QJsonArray array;
    for (const Snooze &snooze : snoozes)
        array.append(toJson(snooze));
    object.insert(SnoozesKey, array);
}

Welcome readWelcome(JsonObject &object)
{
    JsonObject site = object.object(SiteKey);
    return {readSite(site), readSnoozes(object),
            static_cast<qint64>(object.number(TimeKey, 0, LatestTimeMs))};
}

Refused readRefused(JsonObject &object)
{
    return {object.text(ReasonKey), object.requiredFlag(FinalKey)};
}

Result readResult(JsonObject &object)
{
    return {object.wholeNumber(IdKey, 0, std::numeric_limits<int>::max()), object.text(CodeKey),
            object.value(DataKey).toVariant()};
}

NodeStatus readNodeStatus(JsonObject &object)
{
    const bool isCamera = object.has(CameraKey);
    return {isCamera ? NodeType::Camera : NodeType::Station,
            object.text(isCamera ? CameraKey : StationKey), object.requiredFlag(ConnectedKey)};
}

StorageChanged readStorageChanged(JsonObject &object)
{
    Station station;
    station.id = object.text(StationKey);
    readStorage(object, station);
    return {station};
}

Snoozed readSnoozed(JsonObject &object)
{
    JsonObject snooze = object.object(SnoozeKey);
    return {readSnooze(snooze)};
}

Event readEvent(JsonObject &object)
{
    return {object.text(NameKey), object.value(DataKey).toVariant(),
            Message::optionalText(object, SourceKey)};
}

} // namespace

QString toText(const Welcome &welcome)
{
    QJsonObject object = Message::object(WelcomeType);
    object.insert(SiteKey, toJson(welcome.site));
    writeSnoozes(welcome.snoozes, object);
    object.insert(TimeKey, welcome.timeMs);
    return Message::toText(object);
}

QString toText(const Refused &refused)
{
    QJsonObject object = Message::object(RefusedType);
    object.insert(ReasonKey, refused.reason);
    object.insert(FinalKey, refused.isFinal);
    return Message::toText(object);
}

QString toText(const Result &result)
{
    QJsonObject object = Message::object(ResultType);
    object.insert(IdKey, result.id);
    object.insert(CodeKey, result.code);
    object.insert(DataKey, QJsonValue::fromVariant(result.data));
    return Message::toText(object);
}

QString toText(const NodeStatus &status)
{
    QJsonObject object = Message::object(NodeStatusType);
    object.insert(status.type == NodeType::Camera ? CameraKey : StationKey, status.nodeId);
    object.insert(ConnectedKey, status.connected);
    return Message::toText(object);
}

QString toText(const CameraRemoved &removed)
{
    QJsonObject object = Message::object(CameraRemovedType);
    object.insert(CameraKey, removed.cameraId);
    return Message::toText(object);
}

QString toText(const StationRemoved &removed)
{
    QJsonObject object = Message::object(StationRemovedType);
    object.insert(StationKey, removed.stationId);
    return Message::toText(object);
}

QString toText(const StorageChanged &changed)
{
    QJsonObject object = Message::object(StorageChangedType);
    object.insert(StationKey, changed.station.id);
    writeStorage(changed.station, object);
    return Message::toText(object);
}

QString toText(const Snoozed &snoozed)
{
    QJsonObject object = Message::object(SnoozedType);
    object.insert(SnoozeKey, toJson(snoozed.snooze));
    return Message::toText(object);
}

QString toText(const SnoozeEnded &ended)
{
    QJsonObject object = Message::object(SnoozeEndedType);
    object.insert(ServerNames::KeyNodeId, ended.nodeId);
    return Message::toText(object);
}

QString toText(const Event &event)
{
    QJsonObject object = Message::object(EventType);
    object.insert(NameKey, event.name);
    object.insert(DataKey, QJsonValue::fromVariant(event.data));
    Message::insertOptional(object, SourceKey, event.sourceId);
    return Message::toText(object);
}

AnyServerMessage readServerMessage(const QString &text)
{
    static const Message::Readers<AnyServerMessage> readers{
        {WelcomeType, [](JsonObject &object) -> AnyServerMessage { return readWelcome(object); }},
        {RefusedType, [](JsonObject &object) -> AnyServerMessage { return readRefused(object); }},
        {ResultType, [](JsonObject &object) -> AnyServerMessage { return readResult(object); }},
        {NodeStatusType,
         [](JsonObject &object) -> AnyServerMessage { return readNodeStatus(object); }},
        {CameraRemovedType,
         [](JsonObject &object) -> AnyServerMessage {
             return CameraRemoved{object.text(CameraKey)};
         }},
        {StationRemovedType,
         [](JsonObject &object) -> AnyServerMessage {
             return StationRemoved{object.text(StationKey)};
         }},
        {StorageChangedType,
         [](JsonObject &object) -> AnyServerMessage { return readStorageChanged(object); }},
        {SnoozedType, [](JsonObject &object) -> AnyServerMessage { return readSnoozed(object); }},
        {SnoozeEndedType,
         [](JsonObject &object) -> AnyServerMessage {
             return SnoozeEnded{object.text(ServerNames::KeyNodeId)};
         }},
        {EventType, [](JsonObject &object) -> AnyServerMessage { return readEvent(object); }},
    };
    return Message::read(text, readers);
}
