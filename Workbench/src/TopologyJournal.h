#ifndef TOPOLOGYJOURNAL_H
#define TOPOLOGYJOURNAL_H

#include <QJsonObject>
#include <QObject>

#include <functional>

class QStandardItemModel;

/// Tells of each change of a topology model as of an object for a journal.
///
/// `path` leads from the top to a node by the numbers of rows. Changes are `{"reset": true}`,
/// `{"path", "row", "insert": [node]}` below the node, `{"path", "row", "remove": count}`, and
/// `{"path", "change": roles}`. A node is `{"roles", "children"}`, the roles go by their numbers.
class TopologyRecorder : public QObject
{
    Q_OBJECT

public:
    using Write = std::function<void(const QJsonObject &change)>;

    /// Writes what is in the model, then each change. The model must outlive the recorder.
    TopologyRecorder(QStandardItemModel &model, Write write);

private:
    void writeRows(const QModelIndex &parent, int first, int last);

    QStandardItemModel &m_model;
    const Write m_write;
};

/// Makes a change to a model that a recorder told of. False when the model has no such node or the
/// change is none; the model stays as it is then.
bool applyTopologyChange(QStandardItemModel &model, const QJsonObject &change);

#endif
