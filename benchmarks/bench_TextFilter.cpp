#include "BareErrorList.h"
#include "BareProxy.h"
#include "Outage.h"
#include "Scenario.h"
#include "SilentHost.h"
#include "StopWatch.h"
#include "Verify.h"

namespace {

int camerasAtFilteredPlace(const Site &site)
{
    int cameras = 0;
    for (const Site::Station &station : site.stations()) {
        if (station.name.startsWith(FilteredPlace))
            cameras += static_cast<int>(station.cameraIDs.size());
    }
    return cameras;
}

double typeInto(QSortFilterProxyModel &proxy)
{
    const QString text = FilteredPlace.toLower();

    const StopWatch watch;
    for (qsizetype letters = 1; letters <= text.size(); ++letters)
        proxy.setFilterFixedString(text.left(letters));
    return watch.milliseconds();
}

double typeText(const Setting &setting)
{
    const Site site(setting.size);
    SilentHost host(setting.pluginFile);
    reportCamerasDown(host, site);
    const auto proxy = host.proxy();
    verify(proxy->rowCount() == setting.size, "a row for each camera");

    const double milliseconds = typeInto(*proxy);

    verify(proxy->rowCount() == camerasAtFilteredPlace(site), "the cameras of one place are left");
    return milliseconds;
}

double bareTypeText(const Setting &setting)
{
    const Site site(setting.size);
    BareErrorList errors;
    errors.fill(rowsOfCamerasDown(setting.pluginFile, site));
    BareProxy proxy(errors.model);

    const double milliseconds = typeInto(proxy);

    verify(proxy.rowCount() == camerasAtFilteredPlace(site), "the bare rows of one place are left");
    return milliseconds;
}

} // namespace

const Scenario TextFilter{"f", "eight letters typed into the text filter", typeText, bareTypeText};
