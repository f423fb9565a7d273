#include "BareErrorList.h"
#include "BareProxy.h"
#include "Outage.h"
#include "Scenario.h"
#include "SilentHost.h"
#include "StopWatch.h"
#include "Verify.h"

namespace {

double disconnect(const Setting &setting)
{
    SilentHost host(setting.pluginFile);
    reportCamerasDown(host, Site(setting.size));
    const auto proxy = host.proxy();
    verify(proxy->rowCount() == setting.size, "a row for each camera");

    const StopWatch watch;
    host.plugin()->PluginServerDisconnected();
    const double milliseconds = watch.milliseconds();

    verify(proxy->rowCount() == 0, "no row is left");
    return milliseconds;
}

double bareDisconnect(const Setting &setting)
{
    BareErrorList errors;
    errors.fill(rowsOfCamerasDown(setting.pluginFile, Site(setting.size)));
    const BareProxy proxy(errors.model);

    const StopWatch watch;
    for (int row = errors.model.rowCount() - 1; row >= 0; --row)
        errors.model.removeRow(row);
    const double milliseconds = watch.milliseconds();

    verify(proxy.rowCount() == 0, "no bare row is left");
    return milliseconds;
}

} // namespace

const Scenario ServerDisconnects{"e", "server disconnects, proxy", disconnect, bareDisconnect};
