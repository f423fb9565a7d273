#include "Scenario.h"
#include "SilentHost.h"
#include "Site.h"
#include "StopWatch.h"
#include "Verify.h"

namespace {

double fill(TopologyModel &topology, const Site &site)
{
    const StopWatch watch;
    site.addTo(topology, true);
    const double milliseconds = watch.milliseconds();

    verify(topology.top()->rowCount() == site.stations().size(), "every station is there");
    return milliseconds;
}

double fillWatched(const Setting &setting)
{
    SilentHost host(setting.pluginFile);
    return fill(host.topologyModel, Site(setting.size));
}

double fillUnwatched(const Setting &setting)
{
    TopologyModel topology;
    return fill(topology, Site(setting.size));
}

} // namespace

const Scenario TopologyFilled{"k", "topology filled while the plug-in is paired", fillWatched,
                              fillUnwatched};
