#include "DashboardSnoozes.h"

#include "Site.h"

#include <QVariantMap>

namespace {

constexpr qint64 MsPerSecond = 1000;

QString nameOf(const Site &site, const QString &nodeId)
{
    if (const Camera *const camera = site.findCamera(nodeId))
        return camera->name;
    const Station *const station = site.findStation(nodeId);
    return station ? station->name : QString();
}

} // namespace

QVariantList dashboardSnoozes(const Site &site, const std::vector<Snooze> &snoozes)
{
    QVariantList list;
    for (const Snooze &snooze : snoozes) {
        list.append(QVariantMap{{QStringLiteral("nodeID"), snooze.nodeId},
                                {QStringLiteral("type"), snooze.errorType},
                                {QStringLiteral("until"), snooze.endSeconds * MsPerSecond},
                                {QStringLiteral("name"), nameOf(site, snooze.nodeId)}});
    }
    return list;
}
