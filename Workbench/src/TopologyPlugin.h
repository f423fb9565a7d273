#ifndef TOPOLOGYPLUGIN_H
#define TOPOLOGYPLUGIN_H

#include "Site.h"

#include <QHash>
#include <QObject>
#include <QStandardItemModel>

/// The roles of the topology model. Other plug-ins read them by number.
namespace TopologyRole {

enum : int {
    NodeId = Qt::UserRole + 1,        ///< QString
    NameMap = Qt::UserRole + 2,       ///< QVariantMap with the name under "nameRole"
    DisplayName = Qt::UserRole + 3,   ///< QString
    DisplayNodeId = Qt::UserRole + 4, ///< QString, the same as NodeId
    Type = Qt::UserRole + 6,          ///< int, a NodeType
    Connected = Qt::UserRole + 28,    ///< bool
};

} // namespace TopologyRole

/// The plug-in that owns the device topology: what the client knows of the site's nodes.
///
/// The model has the site as its one top-level node, the stations below it, and below each station
/// its cameras and sub-stations. A change is in the model before its signal is emitted.
class TopologyPlugin : public QObject
{
    Q_OBJECT

public:
    explicit TopologyPlugin(QObject *parent = nullptr);

    /// The model, owned by the plug-in, the same object for its whole life. Called by name.
    Q_INVOKABLE QObject *getStandardTopologyModel();

    /// Takes a site in place of what was known. No signal tells of it: the states are learnt once
    /// announceStatesRetrieved() is called.
    void setSite(const Site &site);

    // What the server tells of single nodes. Unknown ids are ignored.

    void setNodeStatus(NodeType type, const QString &nodeId, bool connected);
    void removeCamera(const QString &cameraId);
    void removeStation(const QString &stationId);

    /// Says that the states of all nodes have been fetched, or that this failed.
    void announceStatesRetrieved(bool success);

Q_SIGNALS:
    // Other plug-ins connect to these by signature.
    void nodeStatusChanged(int type, const QString &nodeId, bool connected);
    void deviceRemoved(const QString &deviceId);
    void stationRemoved(const QString &stationId);
    void camStatusRetrievedChanged(bool success);

private:
    QStandardItem *makeItem(const QString &id, const QString &name, NodeType type, bool connected);
    QStandardItem *makeStation(const Station &station);
    bool remove(const QString &nodeId);
    void forget(const QStandardItem *item);

    QStandardItemModel m_model;
    QHash<QString, QStandardItem *> m_items; // by node id, owned by the model
};

#endif
