#include "SiteJson.h"

#include "AddressReader.h"
#include "JsonObject.h"
#include "ResourceReader.h"

#include <QCoreApplication>
#include <QHash>
#include <QJsonArray>

#include <utility>

namespace {

constexpr int MaxDays = 36'500;
constexpr int MaxAlike = 10'000;
constexpr int MaxNodes = 100'000;

const QString IdKey = QStringLiteral("id");
const QString NameKey = QStringLiteral("name");
const QString CountKey = QStringLiteral("count");

class Reader
{
    Q_DECLARE_TR_FUNCTIONS(SiteFile)

public:
    static QString ownPart(JsonObject &object);
    static Volume volume(JsonObject &object);
    static RecordingGroup recordingGroup(JsonObject &object);
    static void storage(JsonObject &object, Station &station);

    static std::vector<JsonObject> oneByOne(std::vector<JsonObject> entries);

    QString nodeId(JsonObject &object, const QString &parentId);
    Camera camera(JsonObject &object, const QString &stationId);
    Station station(JsonObject &object, const QString &parentId);

private:
    static void expectNew(JsonObject &object, const QString &id, QHash<QString, QString> &places);

    QHash<QString, QString> m_nodePlaces; // id to where it was first used
};

// An entry with a count stands for as many nodes.
std::vector<JsonObject> Reader::oneByOne(std::vector<JsonObject> entries)
{
    std::vector<JsonObject> nodes;
    for (JsonObject &entry : entries) {
        if (!entry.has(CountKey)) {
            nodes.push_back(std::move(entry));
            continue;
        }
        const int count = entry.wholeNumber(CountKey, 1, MaxAlike);
        const QString id = entry.text(IdKey);
        if (!id.contains(u'#'))
            entry.fail(IdKey, tr("an id with \"#\" for the number"), tr("\"%1\"").arg(id));
        for (int number = 1; number <= count; ++number)
            nodes.push_back(entry.numbered({IdKey, NameKey}, number));
    }
    return nodes;
}

QString Reader::ownPart(JsonObject &object)
{
    QString part = object.text(IdKey);
    if (part.contains(u'/'))
        object.fail(IdKey, tr("an id without \"/\""), tr("\"%1\"").arg(part));
    return part;
}

void Reader::expectNew(JsonObject &object, const QString &id, QHash<QString, QString> &places)
{
    if (places.contains(id))
        object.fail(IdKey, tr("an id that is used once"),
                    tr("\"%1\" as at %2").arg(id, places.value(id)));
    places.insert(id, object.placeOf(IdKey));
}

QString Reader::nodeId(JsonObject &object, const QString &parentId)
{
    QString id = childNodeId(parentId, ownPart(object));
    if (id == ThisMachineId)
        object.fail(IdKey, tr("an id other than that of this machine"), tr("\"%1\"").arg(id));
    expectNew(object, id, m_nodePlaces);
    if (m_nodePlaces.size() > MaxNodes)
        object.fail(IdKey, tr("%1 stations and cameras at most").arg(MaxNodes), tr("one more"));
    return id;
}

Volume Reader::volume(JsonObject &object)
{
    Volume volume{object.text(IdKey), object.text(NameKey),
                  object.flag(QStringLiteral("connected"), true)};
    object.expectNoMore();
    return volume;
}

RecordingGroup Reader::recordingGroup(JsonObject &object)
{
    RecordingGroup group{object.text(IdKey), object.text(NameKey),
                         object.wholeNumber(QStringLiteral("recordedDays"), 0, MaxDays),
                         object.wholeNumber(QStringLiteral("requiredDays"), 0, MaxDays)};
    object.expectNoMore();
    return group;
}

void Reader::storage(JsonObject &object, Station &station)
{
    QHash<QString, QString> volumePlaces;
    for (JsonObject &entry : object.objects(QStringLiteral("volumes"))) {
        station.volumes.push_back(volume(entry));
        expectNew(entry, station.volumes.back().id, volumePlaces);
    }
    QHash<QString, QString> groupPlaces;
    for (JsonObject &entry : object.objects(QStringLiteral("recordingGroups"))) {
        station.recordingGroups.push_back(recordingGroup(entry));
        expectNew(entry, station.recordingGroups.back().id, groupPlaces);
    }
}

Camera Reader::camera(JsonObject &object, const QString &stationId)
{
    Camera camera{nodeId(object, stationId), object.text(NameKey),
                  object.flag(QStringLiteral("connected"), true)};
    if (object.has(QStringLiteral("address")))
        camera.address = readCameraAddress(object, QStringLiteral("address"));
    object.expectNoMore();
    return camera;
}

Station Reader::station(JsonObject &object, const QString &parentId)
{
    Station station;
    station.id = nodeId(object, parentId);
    station.name = object.text(NameKey);
    station.connected = object.flag(QStringLiteral("connected"), true);
    station.supportsMonitoring = object.flag(QStringLiteral("supportsMonitoring"), true);
    if (object.has(QStringLiteral("resources"))) {
        JsonObject resources = object.object(QStringLiteral("resources"));
        station.resources = readResources(resources);
        resources.expectNoMore();
    }
    if (object.has(QStringLiteral("exporter")))
        station.exporter = readExporter(object, QStringLiteral("exporter"));
    storage(object, station);
    for (JsonObject &entry : oneByOne(object.objects(QStringLiteral("cameras"))))
        station.cameras.push_back(camera(entry, station.id));
    for (JsonObject &entry : oneByOne(object.objects(QStringLiteral("stations"))))
        station.stations.push_back(this->station(entry, station.id));
    object.expectNoMore();
    return station;
}

QJsonObject toJson(const Volume &volume);
QJsonObject toJson(const RecordingGroup &group);
QJsonObject toJson(const Camera &camera);
QJsonObject toJson(const Station &station);

QString ownPartOf(const QString &id)
{
    return id.mid(id.lastIndexOf(u'/') + 1);
}

template <typename Item> QJsonArray toArray(const std::vector<Item> &items)
{
    QJsonArray array;
    for (const Item &item : items)
        array.append(toJson(item));
    return array;
}

QJsonObject node(const QString &id, const QString &name, bool connected)
{
    return {{IdKey, id}, {NameKey, name}, {QStringLiteral("connected"), connected}};
}

QJsonObject toJson(const Volume &volume)
{
    return node(volume.id, volume.name, volume.connected);
}

QJsonObject toJson(const RecordingGroup &group)
{
    return {{IdKey, group.id},
            {NameKey, group.name},
            {QStringLiteral("recordedDays"), group.recordedDays},
            {QStringLiteral("requiredDays"), group.requiredDays}};
}

QJsonObject toJson(const Camera &camera)
{
    return node(ownPartOf(camera.id), camera.name, camera.connected);
}

QJsonObject toJson(const Station &station)
{
    QJsonObject object = node(ownPartOf(station.id), station.name, station.connected);
    object.insert(QStringLiteral("supportsMonitoring"), station.supportsMonitoring);
    writeStorage(station, object);
    object.insert(QStringLiteral("cameras"), toArray(station.cameras));
    object.insert(QStringLiteral("stations"), toArray(station.stations));
    return object;
}

} // namespace

Site readSite(JsonObject &object)
{
    Site site;
    site.name = object.text(NameKey);
    Reader reader;
    for (JsonObject &entry : Reader::oneByOne(object.requiredObjects(QStringLiteral("stations"))))
        site.stations.push_back(reader.station(entry, {}));
    object.expectNoMore();
    return site;
}

QJsonObject toJson(const Site &site)
{
    return {{NameKey, site.name}, {QStringLiteral("stations"), toArray(site.stations)}};
}

void readStorage(JsonObject &object, Station &station)
{
    Reader::storage(object, station);
}

void writeStorage(const Station &station, QJsonObject &object)
{
    object.insert(QStringLiteral("volumes"), toArray(station.volumes));
    object.insert(QStringLiteral("recordingGroups"), toArray(station.recordingGroups));
}
