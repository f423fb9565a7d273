#include "SiteFile.h"

#include "JsonObject.h"
#include "ResourceReader.h"

#include <QCoreApplication>
#include <QHash>

namespace {

constexpr int MaxDays = 36'500;

class Reader
{
    Q_DECLARE_TR_FUNCTIONS(SiteFile)

public:
    static QString ownPart(JsonObject &object);
    static Volume volume(JsonObject &object);
    static RecordingGroup recordingGroup(JsonObject &object);

    QString nodeId(JsonObject &object, const QString &parentId);
    Camera camera(JsonObject &object, const QString &stationId);
    Station station(JsonObject &object, const QString &parentId);

private:
    static void expectNew(JsonObject &object, const QString &id, QHash<QString, QString> &places);

    QHash<QString, QString> m_nodePlaces; // id to where it was first used
};

QString Reader::ownPart(JsonObject &object)
{
    const QString key = QStringLiteral("id");
    const QString part = object.text(key);
    if (part.contains(u'/'))
        object.fail(key, tr("an id without \"/\""), tr("\"%1\"").arg(part));
    return part;
}

void Reader::expectNew(JsonObject &object, const QString &id, QHash<QString, QString> &places)
{
    const QString key = QStringLiteral("id");
    if (places.contains(id))
        object.fail(key, tr("an id that is used once"),
                    tr("\"%1\" as at %2").arg(id, places.value(id)));
    places.insert(id, object.placeOf(key));
}

QString Reader::nodeId(JsonObject &object, const QString &parentId)
{
    const QString id = childNodeId(parentId, ownPart(object));
    if (id == ThisMachineId)
        object.fail(QStringLiteral("id"), tr("an id other than that of this machine"),
                    tr("\"%1\"").arg(id));
    expectNew(object, id, m_nodePlaces);
    return id;
}

Volume Reader::volume(JsonObject &object)
{
    Volume volume{object.text(QStringLiteral("id")), object.text(QStringLiteral("name")),
                  object.flag(QStringLiteral("connected"), true)};
    object.expectNoMore();
    return volume;
}

RecordingGroup Reader::recordingGroup(JsonObject &object)
{
    RecordingGroup group{object.text(QStringLiteral("id")), object.text(QStringLiteral("name")),
                         object.wholeNumber(QStringLiteral("recordedDays"), 0, MaxDays),
                         object.wholeNumber(QStringLiteral("requiredDays"), 0, MaxDays)};
    object.expectNoMore();
    return group;
}

Camera Reader::camera(JsonObject &object, const QString &stationId)
{
    Camera camera{nodeId(object, stationId), object.text(QStringLiteral("name")),
                  object.flag(QStringLiteral("connected"), true)};
    object.expectNoMore();
    return camera;
}

Station Reader::station(JsonObject &object, const QString &parentId)
{
    Station station;
    station.id = nodeId(object, parentId);
    station.name = object.text(QStringLiteral("name"));
    station.connected = object.flag(QStringLiteral("connected"), true);
    station.supportsMonitoring = object.flag(QStringLiteral("supportsMonitoring"), true);
    if (object.has(QStringLiteral("resources"))) {
        JsonObject resources = object.object(QStringLiteral("resources"));
        station.resources = readResources(resources);
        resources.expectNoMore();
    }
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
    for (JsonObject &entry : object.objects(QStringLiteral("cameras")))
        station.cameras.push_back(camera(entry, station.id));
    for (JsonObject &entry : object.objects(QStringLiteral("stations")))
        station.stations.push_back(this->station(entry, station.id));
    object.expectNoMore();
    return station;
}

} // namespace

Site readSiteFile(const QString &fileName)
{
    JsonObject file = JsonObject::fromFile(fileName);
    Site site;
    site.name = file.text(QStringLiteral("name"));
    Reader reader;
    for (JsonObject &entry : file.requiredObjects(QStringLiteral("stations")))
        site.stations.push_back(reader.station(entry, {}));
    file.expectNoMore();
    return site;
}
