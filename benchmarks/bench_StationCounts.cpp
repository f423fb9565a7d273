#include "BareErrorList.h"
#include "ModelRoles.h"
#include "Outage.h"
#include "Scenario.h"
#include "SilentHost.h"
#include "StopWatch.h"
#include "Verify.h"

#include <QMap>

namespace {

double count(const Setting &setting)
{
    const Site site(setting.size);
    SilentHost host(setting.pluginFile);
    reportCamerasDown(host, site);

    const StopWatch watch;
    host.invoke("updateStationErrorNumber");
    const double milliseconds = watch.milliseconds();

    verify(host.object()->property("stationErrorList").toList().size() == site.stations().size(),
           "a count for each station");
    return milliseconds;
}

double bareCount(const Setting &setting)
{
    const Site site(setting.size);
    BareErrorList errors;
    errors.fill(rowsOfCamerasDown(setting.pluginFile, site));

    const StopWatch watch;
    QMap<QString, int> counts;
    const int rows = errors.model.rowCount();
    for (int row = 0; row < rows; ++row)
        ++counts[errors.model.item(row)->data(ErrorRole::StationID).toString()];
    const double milliseconds = watch.milliseconds();

    verify(counts.size() == site.stations().size(), "a bare count for each station");
    return milliseconds;
}

} // namespace

const Scenario StationCounts{"i", "counts rebuilt", count, bareCount};
