#include "FuzzInput.h"
#include "FuzzTarget.h"
#include "HostedPlugin.h"
#include "Invariants.h"
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

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    HostedPlugin hosted;
    while (!input.isEmpty()) {
        if (hosted.topologyModel.rowCount() == 0)
            hosted.topologyModel.appendRow(new QStandardItem);
        QStandardItem *const node = someNode(hosted.topologyModel.top(), input);
        switch (input.below(10)) {
        case 0:
            hosted.plugin.initNodeStatusError();
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
    }
    hosted.plugin.initNodeStatusError();
    requireConsistency(hosted.plugin);
    hosted.topologyModel.clear();
    hosted.plugin.initNodeStatusError();
    requireConsistency(hosted.plugin);
    return 0;
}
