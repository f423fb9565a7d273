#include "TopologyModel.h"

#include "ModelRoles.h"

TopologyModel::TopologyModel(QObject *parent)
    : QStandardItemModel(parent)
{
    appendRow(new QStandardItem);
}

void TopologyModel::reset()
{
    top()->removeRows(0, top()->rowCount());
}

QStandardItem *TopologyModel::addNode(QStandardItem *parent, int type, const QString &id,
                                      const QString &name, bool connected)
{
    auto *node = new QStandardItem;
    node->setData(id, TopologyRole::LookupID);
    node->setData(QVariantMap{{QStringLiteral("nameRole"), name}}, TopologyRole::LookupNames);
    node->setData(name, TopologyRole::DisplayName);
    node->setData(id, TopologyRole::NodeID);
    node->setData(type, TopologyRole::NodeType);
    node->setData(connected, TopologyRole::Connected);
    parent->appendRow(node);
    return node;
}

QStandardItem *TopologyModel::addStation(const QString &id, const QString &name, bool connected,
                                         QStandardItem *parent)
{
    return addNode(parent ? parent : top(), Station, id, name, connected);
}

QStandardItem *TopologyModel::addCamera(QStandardItem *station, const QString &id,
                                        const QString &name, bool connected)
{
    return addNode(station, Camera, id, name, connected);
}
