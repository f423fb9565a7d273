#include "TopologyPlugin.h"

TopologyPlugin::TopologyPlugin(QObject *parent)
    : QObject(parent)
{ }

QObject *TopologyPlugin::getStandardTopologyModel()
{
    return &m_model;
}

void TopologyPlugin::setSite(const Site &site)
{
    m_items.clear();
    m_model.clear();
    QStandardItem *const root = makeItem({}, site.name, NodeType::Site, true);
    for (const Station &station : site.stations)
        root->appendRow(makeStation(station));
    m_model.appendRow(root);
}

void TopologyPlugin::setNodeStatus(NodeType type, const QString &nodeId, bool connected)
{
    QStandardItem *const item = m_items.value(nodeId);
    if (!item)
        return;
    item->setData(connected, TopologyRole::Connected);
    Q_EMIT nodeStatusChanged(static_cast<int>(type), nodeId, connected);
}

void TopologyPlugin::removeCamera(const QString &cameraId)
{
    if (remove(cameraId))
        Q_EMIT deviceRemoved(cameraId);
}

void TopologyPlugin::removeStation(const QString &stationId)
{
    if (remove(stationId))
        Q_EMIT stationRemoved(stationId);
}

void TopologyPlugin::announceStatesRetrieved(bool success)
{
    Q_EMIT camStatusRetrievedChanged(success);
}

QStandardItem *TopologyPlugin::makeItem(const QString &id, const QString &name, NodeType type,
                                        bool connected)
{
    const auto item = new QStandardItem(name);
    item->setData(id, TopologyRole::NodeId);
    item->setData(QVariantMap{{QStringLiteral("nameRole"), name}}, TopologyRole::NameMap);
    item->setData(name, TopologyRole::DisplayName);
    item->setData(id, TopologyRole::DisplayNodeId);
    item->setData(static_cast<int>(type), TopologyRole::Type);
    item->setData(connected, TopologyRole::Connected);
    if (type != NodeType::Site)
        m_items.insert(id, item);
    return item;
}

QStandardItem *TopologyPlugin::makeStation(const Station &station)
{
    QStandardItem *const item =
        makeItem(station.id, station.name, NodeType::Station, station.connected);
    for (const Camera &camera : station.cameras)
        item->appendRow(makeItem(camera.id, camera.name, NodeType::Camera, camera.connected));
    for (const Station &below : station.stations)
        item->appendRow(makeStation(below));
    return item;
}

bool TopologyPlugin::remove(const QString &nodeId)
{
    const QStandardItem *const item = m_items.value(nodeId);
    if (!item)
        return false;
    forget(item);
    m_model.removeRow(item->row(), item->index().parent());
    return true;
}

void TopologyPlugin::forget(const QStandardItem *item)
{
    m_items.remove(item->data(TopologyRole::NodeId).toString());
    for (int row = 0; row < item->rowCount(); ++row)
        forget(item->child(row));
}
