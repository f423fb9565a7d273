#ifndef TOPOLOGYINDEX_H
#define TOPOLOGYINDEX_H

#include <QHash>
#include <QModelIndex>
#include <QObject>
#include <QPointer>
#include <QStandardItemModel>
#include <QString>

/// Finds nodes of the topology model by id, with the answer of the model's own recursive search:
/// the first node in the order of the tree whose id equals that text.
///
/// The table of ids is made at the first search and kept true by the model's signals. A change that
/// could make another node the first one, such as an id given twice, discards it until it is
/// needed again.
class TopologyIndex : public QObject
{
public:
    /// Searches this model from now on. Not owned; may be null, and may be destroyed at any time.
    void setModel(QStandardItemModel *model);

    /// The node with this id, or an invalid index.
    QModelIndex find(const QString &id);

private:
    struct Node
    {
        QStandardItem *item = nullptr; ///< the first with its id
        int count = 0;                 ///< how many nodes have the id
    };

    void build();
    void discard();
    void beginChange();
    void endChange();
    bool addNodes(const QModelIndex &parent, int first, int last);
    bool removeNodes(const QModelIndex &parent, int first, int last);
    void nodesInserted(const QModelIndex &parent, int first, int last);
    void nodesAboutToBeRemoved(const QModelIndex &parent, int first, int last);
    void nodesChanged(const QModelIndex &from, const QModelIndex &to);
    QModelIndex searchModel(const QString &id) const;

    QPointer<QStandardItemModel> m_model;
    QHash<size_t, Node> m_nodes; ///< by hash of the id: to copy ids takes longer than the rest
    bool m_isBuilt = false;
    bool m_isUncertain = false; ///< some id is no text, or hashes as another does
    int m_changes = 0;          ///< insertions and removals, announced and not yet done
};

#endif
