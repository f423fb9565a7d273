#include "FuzzInput.h"
#include "FuzzTarget.h"
#include "HostedPlugin.h"
#include "Invariants.h"
#include "SystemErrorModel.h"
#include "TopologyRoles.h"

// Topologies of any shape, with any values under the roles that the walk reads, changed between the
// walks.

using namespace Qt::Literals::StringLiterals;

namespace {

void setSomeRole(QStandardItem *node, FuzzInput &input)
{
    switch (input.below(6)) {
    case 0:
        node->setData(input.value(1), Topology::IdRole);
        break;
    case 1:
        node->setData(input.value(1), Topology::PropertiesRole);
        break;
    case 2:
        node->setData(input.value(1), Topology::DisplayNameRole);
        break;
    case 3:
        node->setData(input.value(1), Topology::NodeIdRole);
        break;
    case 4:
        node->setData(input.value(1), Topology::NodeTypeRole);
        break;
    default:
        node->setData(input.value(1), Topology::ConnectedRole);
    }
}

QStandardItem *addNode(QStandardItem *parent, FuzzInput &input)
{
    QStandardItem *const node =
        TopologyModel::addNode(parent, input.below(3), input.id(), input.id(), input.flag());
    if (input.below(4) == 3)
        setSomeRole(node, input);
    return node;
}

QStandardItem *someNode(QStandardItem *node, FuzzInput &input)
{
    while (node->rowCount() > 0 && input.flag()) {
        QStandardItem *const child = node->child(input.below(node->rowCount()));
        if (!child)
            break;
        node = child;
    }
    return node;
}

/// Every text by which a node can be asked for is answered as the model's own search does.
void requireNames(HostedPlugin &hosted, const QString &id)
{
    const TopologyModel &model = hosted.topologyModel;
    const QModelIndex hit = model
                                .match(model.index(0, 0), Topology::IdRole, id, 1,
                                       Qt::MatchExactly | Qt::MatchRecursive)
                                .value(0);
    const QString name = hit.data(Topology::PropertiesRole).toMap().value(u"nameRole"_s).toString();
    require(hosted.plugin.findDeviceName(id) == name, "a name is what a search finds");
}

/// The walk's rules, written down once more: literal, on a plain list of keys.
class ExpectedWalk
{
public:
    explicit ExpectedWalk(const HostedPlugin &hosted)
        : m_snoozed(hosted.plugin.snoozedDeviceList)
    {
        const SystemErrorModel &errors = *hosted.plugin.errorModel;
        for (int row = 0; row < errors.rowCount(); ++row) {
            const QModelIndex error = errors.index(row, 0);
            m_errors.append({error.data(SystemErrorModel::UniqueIDRole).toString(),
                             error.data(SystemErrorModel::StationIDRole).toString()});
        }
        if (hosted.topologyModel.rowCount() > 0)
            walk(*hosted.topologyModel.top());
    }

    QStringList keys() const
    {
        QStringList keys;
        for (const Error &error : m_errors)
            keys.append(error.key);
        return keys;
    }

private:
    struct Error
    {
        QString key;
        QString stationID;
    };

    void walk(const QStandardItem &parent)
    {
        for (int row = 0; row < parent.rowCount(); ++row) {
            const QStandardItem &node = *parent.child(row);
            const int type = node.data(Topology::NodeTypeRole).toInt();
            const QString id = node.data(Topology::NodeIdRole).toString();
            const bool isConnected = node.data(Topology::ConnectedRole).toBool();
            if (type == Topology::CameraNode)
                reconcile({u"3_"_s + id, id.left(qMax(0, id.lastIndexOf(u'/')))}, id, isConnected);
            if (type != Topology::StationNode)
                continue;
            if (!isConnected && !lists(u"4_"_s + id))
                m_errors.removeIf(
                    [&id](const Error &error) { return error.stationID.left(id.size()) == id; });
            reconcile({u"4_"_s + id, id}, id, isConnected);
            walk(node);
        }
    }

    void reconcile(const Error &error, const QString &id, bool isConnected)
    {
        if (isConnected)
            m_errors.removeIf([&error](const Error &listed) { return listed.key == error.key; });
        else if (!lists(error.key) && !m_snoozed.contains(id))
            m_errors.append(error);
    }

    bool lists(const QString &key) const { return keys().contains(key); }

    QStringList m_snoozed;
    QList<Error> m_errors;
};

void requireWalk(HostedPlugin &hosted)
{
    const ExpectedWalk expected(hosted);
    hosted.plugin.initNodeStatusError();
    require(hosted.errorKeys() == expected.keys(),
            "a walk lists each disconnected node that is not snoozed once, and no connected one");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    HostedPlugin hosted;
    const LeftKeys leftKeys(hosted.plugin);
    RegularConsistency consistency(hosted.plugin);
    while (!input.isEmpty()) {
        if (hosted.topologyModel.rowCount() == 0)
            hosted.topologyModel.appendRow(new QStandardItem);
        QStandardItem *const node = someNode(hosted.topologyModel.top(), input);
        switch (input.below(10)) {
        case 0:
            requireWalk(hosted);
            break;
        case 1:
            node->removeRows(0, input.below(node->rowCount() + 1));
            break;
        case 2:
            setSomeRole(node, input);
            break;
        case 3:
            hosted.plugin.snoozedDeviceList.append(input.id());
            break;
        case 4:
            requireNames(hosted, input.id());
            break;
        case 5:
            if (input.below(8) == 7)
                hosted.topologyModel.clear();
            break;
        default:
            addNode(node, input);
        }
        consistency.afterStep();
    }
    requireWalk(hosted);
    requireConsistency(hosted.plugin);
    hosted.topologyModel.clear();
    requireWalk(hosted);
    requireConsistency(hosted.plugin);
    leftKeys.requireForgotten();
    return 0;
}
