#include "SiteInvariants.h"

#include "Invariants.h"
#include "JsonObject.h"
#include "SiteJson.h"

#include <QJsonDocument>
#include <QSet>

namespace {

// Each search goes through the whole site.
constexpr int MostNodesToSearch = 1000;

template <typename Items> void requireOwnIds(const Items &items)
{
    QSet<QString> ids;
    for (const auto &item : items) {
        require(!item.id.isEmpty() && !item.name.isEmpty(), "storage has an id and a name");
        require(!ids.contains(item.id), "storage has an id of its own in its station");
        ids.insert(item.id);
    }
}

/// Looks at one node after another.
class TreeCheck
{
public:
    explicit TreeCheck(const Site &site)
        : m_site(site)
        , m_isSearched(site.stationCount() + site.cameraCount() <= MostNodesToSearch)
    { }

    void stations(const std::vector<Station> &stations, const QString &parentId)
    {
        for (const Station &station : stations) {
            node(station.id, parentId);
            require(!m_isSearched || m_site.findStation(station.id) == &station,
                    "a station is found by its id");
            for (const Camera &camera : station.cameras) {
                node(camera.id, station.id);
                require(!m_isSearched || m_site.findCamera(camera.id) == &camera,
                        "a camera is found by its id");
            }
            requireOwnIds(station.volumes);
            requireOwnIds(station.recordingGroups);
            this->stations(station.stations, station.id);
        }
    }

    int nodes() const { return static_cast<int>(m_ids.size()); }

private:
    void node(const QString &id, const QString &parentId)
    {
        require(!m_ids.contains(id), "an id is used once");
        require(parentNodeId(id) == parentId, "an id names the node above");
        m_ids.insert(id);
    }

    const Site &m_site;
    const bool m_isSearched;
    QSet<QString> m_ids;
};

} // namespace

void requireTree(const Site &site)
{
    TreeCheck check(site);
    check.stations(site.stations, QString());
    require(check.nodes() == site.stationCount() + site.cameraCount(),
            "every node is counted once");
}

void requireRewritable(const Site &site)
{
    const QByteArray text = QJsonDocument(toJson(site)).toJson();
    JsonObject object = JsonObject::fromText(QStringLiteral("site"), text);
    const Site again = readSite(object);
    require(QJsonDocument(toJson(again)).toJson() == text, "a site is written as it was read");
}
