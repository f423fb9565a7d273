#include "ModelRoles.h"
#include "Scenario.h"
#include "SilentHost.h"
#include "Site.h"
#include "StopWatch.h"
#include "Verify.h"

namespace {

QString lastCamera(const Site &site)
{
    return site.stations().last().cameraIDs.last();
}

double reportLastCamera(const Setting &setting)
{
    const Site site(setting.size);
    SilentHost host(setting.pluginFile);
    site.addTo(host.topologyModel, true);

    const StopWatch watch;
    Q_EMIT host.topology.nodeStatusChanged(TopologyModel::Camera, lastCamera(site), false);
    const double milliseconds = watch.milliseconds();

    verify(host.errors()->rowCount() == 1, "the error is listed");
    return milliseconds;
}

// What the model's own search costs, which a name of a camera and that of its station take.
double searchLastCamera(const Setting &setting)
{
    const Site site(setting.size);
    TopologyModel topology;
    site.addTo(topology, true);

    const StopWatch watch;
    qsizetype hits = 0;
    for (const QString &id : {lastCamera(site), site.stations().last().id})
        hits += topology
                    .match(topology.index(0, 0), TopologyRole::LookupID, id, 1,
                           Qt::MatchExactly | Qt::MatchRecursive)
                    .size();
    const double milliseconds = watch.milliseconds();

    verify(hits == 2, "both nodes are found");
    return milliseconds;
}

} // namespace

const Scenario FirstName{"l", "the first name of a topology", reportLastCamera, searchLastCamera};
