#include "BareErrorList.h"
#include "BareProxy.h"
#include "Outage.h"
#include "Scenario.h"
#include "Shuffled.h"
#include "SilentHost.h"
#include "StopWatch.h"
#include "Verify.h"

namespace {

double goDown(const Setting &setting)
{
    const Site site(setting.size);
    const QStringList cameraIDs = site.cameraIDs();
    SilentHost host(setting.pluginFile);
    site.addTo(host.topologyModel, true);
    const auto proxy = host.proxy();

    const StopWatch watch;
    for (const QString &cameraID : cameraIDs)
        Q_EMIT host.topology.nodeStatusChanged(TopologyModel::Camera, cameraID, false);
    const double milliseconds = watch.milliseconds();

    verify(proxy->rowCount() == setting.size, "a row for each camera");
    return milliseconds;
}

double bareGoDown(const Setting &setting)
{
    const QList<ErrorRow> rows = rowsOfCamerasDown(setting.pluginFile, Site(setting.size));
    BareErrorList errors;
    const BareProxy proxy(errors.model);

    const StopWatch watch;
    for (const ErrorRow &row : rows)
        errors.append(row);
    const double milliseconds = watch.milliseconds();

    verify(proxy.rowCount() == setting.size, "a bare row for each camera");
    return milliseconds;
}

double comeBack(const Setting &setting)
{
    const Site site(setting.size);
    const QStringList cameraIDs = site.cameraIDs();
    const QList<int> order = shuffledNumbers(setting.size);
    SilentHost host(setting.pluginFile);
    reportCamerasDown(host, site);
    site.addTo(host.topologyModel, true);
    const auto proxy = host.proxy();
    verify(proxy->rowCount() == setting.size, "a row for each camera");

    const StopWatch watch;
    for (const int camera : order)
        Q_EMIT host.topology.nodeStatusChanged(TopologyModel::Camera, cameraIDs.at(camera), true);
    const double milliseconds = watch.milliseconds();

    verify(proxy->rowCount() == 0, "no row is left");
    return milliseconds;
}

double bareComeBack(const Setting &setting)
{
    const QList<int> order = shuffledNumbers(setting.size);
    BareErrorList errors;
    const QList<QStandardItem *> items =
        errors.fill(rowsOfCamerasDown(setting.pluginFile, Site(setting.size)));
    const BareProxy proxy(errors.model);

    const StopWatch watch;
    for (const int camera : order)
        errors.remove(items.at(camera));
    const double milliseconds = watch.milliseconds();

    verify(proxy.rowCount() == 0, "no bare row is left");
    return milliseconds;
}

} // namespace

const Scenario CamerasGoDown{"c", "cameras reported down one by one, proxy", goDown, bareGoDown};
const Scenario CamerasComeBack{"d", "the same cameras back in random order, proxy", comeBack,
                               bareComeBack};
