#include "DashboardSnoozes.h"

#include "Site.h"

#include <QHash>
#include <QVariantMap>

namespace {

constexpr qint64 MsPerSecond = 1000;

QHash<QString, QString> namesOfNodes(const Site &site)
{
    QHash<QString, QString> names;
    site.forEachStation([&names](const Station &station) {
        names.insert(station.id, station.name);
        for (const Camera &camera : station.cameras)
            names.insert(camera.id, camera.name);
    });
    return names;
}

} // namespace

QVariantList dashboardSnoozes(const Site &site, const std::vector<Snooze> &snoozes)
{
    if (snoozes.empty())
        return {};
    const QHash<QString, QString> names = namesOfNodes(site);
    QVariantList list;
    for (const Snooze &snooze : snoozes) {
        list.append(QVariantMap{{QStringLiteral("nodeID"), snooze.nodeId},
                                {QStringLiteral("type"), snooze.errorType},
                                {QStringLiteral("until"), snooze.endSeconds * MsPerSecond},
                                {QStringLiteral("name"), names.value(snooze.nodeId)}});
    }
    return list;
}
