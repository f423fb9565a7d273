#include "StationList.h"

#include "Site.h"

#include <QVariantMap>

QVariantList stationList(const Site &site)
{
    QVariantList list;
    site.forEachStation([&list](const Station &station) {
        list.append(QVariantMap{{QStringLiteral("stationID"), station.id},
                                {QStringLiteral("name"), station.name},
                                {QStringLiteral("parentID"), parentNodeId(station.id)},
                                {QStringLiteral("connected"), station.connected}});
    });
    return list;
}
