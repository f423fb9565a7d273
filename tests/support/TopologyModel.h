#ifndef TOPOLOGYMODEL_H
#define TOPOLOGYMODEL_H

#include <QStandardItemModel>

/// The host's device tree as plug-ins see it: one top-level node, stations and cameras under it.
///
/// Nodes carry the roles of TopologyRole. The functions fill all of them alike; a test that needs a
/// node with contradictory or missing roles changes the returned item.
class TopologyModel : public QStandardItemModel
{
public:
    enum NodeType : int { Camera = 0, Station = 1 };

    /// Makes a model with its top-level node, whose id and name are empty.
    explicit TopologyModel(QObject *parent = nullptr);

    /// Takes all nodes away but the top-level one.
    void reset();

    /// The node under which stations and stray cameras hang.
    QStandardItem *top() const { return item(0); }

    /// Adds a node under @p parent and returns its item, which the model owns.
    static QStandardItem *addNode(QStandardItem *parent, int type, const QString &id,
                                  const QString &name, bool connected);

    /// Adds a station, under the top-level node unless a parent is given.
    QStandardItem *addStation(const QString &id, const QString &name, bool connected = true,
                              QStandardItem *parent = nullptr);

    /// Adds a camera under a station.
    static QStandardItem *addCamera(QStandardItem *station, const QString &id, const QString &name,
                                    bool connected = true);
};

#endif
