#include "StationList.h"

#include "Site.h"
#include "TopologyPlugin.h"

#include <QStandardItemModel>
#include <QVariantMap>

namespace {

QVariantMap entryOf(const QString &id, const QString &name, bool isConnected)
{
    return {{QStringLiteral("stationID"), id},
            {QStringLiteral("name"), name},
            {QStringLiteral("parentID"), parentNodeId(id)},
            {QStringLiteral("connected"), isConnected}};
}

void appendStationsBelow(const QStandardItem &parent, QVariantList &list)
{
    for (int row = 0; row < parent.rowCount(); ++row) {
        const QStandardItem &node = *parent.child(row);
        if (node.data(TopologyRole::Type).toInt() != static_cast<int>(NodeType::Station))
            continue;
        list.append(entryOf(node.data(TopologyRole::NodeId).toString(),
                            node.data(TopologyRole::DisplayName).toString(),
                            node.data(TopologyRole::Connected).toBool()));
        appendStationsBelow(node, list);
    }
}

} // namespace

QVariantList stationList(const Site &site)
{
    QVariantList list;
    site.forEachStation([&list](const Station &station) {
        list.append(entryOf(station.id, station.name, station.connected));
    });
    return list;
}

QVariantList stationList(const QStandardItemModel &topology)
{
    QVariantList list;
    for (int row = 0; row < topology.rowCount(); ++row)
        appendStationsBelow(*topology.item(row), list);
    return list;
}
