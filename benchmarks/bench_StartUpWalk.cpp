#include "BareErrorList.h"
#include "ModelRoles.h"
#include "Outage.h"
#include "Scenario.h"
#include "SilentHost.h"
#include "StopWatch.h"
#include "Verify.h"

namespace {

double walk(const Setting &setting, bool connected)
{
    const Site site(setting.size);
    const int nodes = setting.size + static_cast<int>(site.stations().size());
    SilentHost host(setting.pluginFile);
    site.addTo(host.topologyModel, connected);

    const StopWatch watch;
    host.invoke("initNodeStatusError");
    const double milliseconds = watch.milliseconds();

    verify(host.errors()->rowCount() == (connected ? 0 : nodes),
           "a row for each disconnected node");
    verify(host.recording.reloads == site.stations().size(), "a reload for each station");
    return milliseconds;
}

double walkConnected(const Setting &setting)
{
    return walk(setting, true);
}

double walkDisconnected(const Setting &setting)
{
    return walk(setting, false);
}

// Reads what the plug-in's walk needs of each node, a station's name once for all its cameras, and
// appends a ready row for each node that is disconnected.
class BareWalk
{
public:
    BareErrorList errors;
    QList<ErrorRow> stationRows;
    QList<ErrorRow> cameraRows;
    int nodes = 0;
    qsizetype letters = 0; ///< of all names and ids, so that reading them has a purpose

    void visitChildren(const TopologyModel &topology, const QModelIndex &parent)
    {
        const int rows = topology.rowCount(parent);
        for (int row = 0; row < rows; ++row) {
            const QModelIndex index = topology.index(row, 0, parent);
            visit(*topology.itemFromIndex(index));
            visitChildren(topology, index);
        }
    }

private:
    void visit(const QStandardItem &node)
    {
        ++nodes;
        letters += node.data(TopologyRole::NodeID).toString().size();
        letters += node.data(TopologyRole::DisplayName).toString().size();
        const bool connected = node.data(TopologyRole::Connected).toBool();
        if (node.data(TopologyRole::NodeType).toInt() == TopologyModel::Station) {
            const QVariantMap names = node.data(TopologyRole::LookupNames).toMap();
            letters += names.value(QStringLiteral("nameRole")).toString().size();
            if (!connected)
                errors.append(stationRows.at(m_nextStation++));
        } else if (!connected) {
            errors.append(cameraRows.at(m_nextCamera++));
        }
    }

    qsizetype m_nextStation = 0;
    qsizetype m_nextCamera = 0;
};

double bareWalk(const Setting &setting, bool connected)
{
    const Site site(setting.size);
    const int nodes = setting.size + static_cast<int>(site.stations().size());
    TopologyModel topology;
    site.addTo(topology, connected);

    BareWalk walk;
    if (!connected) {
        walk.stationRows = rowsOfStationsDown(setting.pluginFile, site);
        walk.cameraRows = rowsOfCamerasDown(setting.pluginFile, site);
    }

    const StopWatch watch;
    walk.visitChildren(topology, topology.index(0, 0));
    const double milliseconds = watch.milliseconds();

    verify(walk.nodes == nodes && walk.letters > nodes, "every node was read");
    verify(walk.errors.model.rowCount() == (connected ? 0 : nodes), "a row for each node");
    return milliseconds;
}

double bareWalkConnected(const Setting &setting)
{
    return bareWalk(setting, true);
}

double bareWalkDisconnected(const Setting &setting)
{
    return bareWalk(setting, false);
}

} // namespace

const Scenario StartUpWalkConnected{"a", "start-up walk, all connected", walkConnected,
                                    bareWalkConnected};
const Scenario StartUpWalkDisconnected{"b", "start-up walk, all disconnected", walkDisconnected,
                                       bareWalkDisconnected};
