#ifndef WORKBENCHFIXTURE_H
#define WORKBENCHFIXTURE_H

#include "LocalSite.h"
#include "OperationalLogStore.h"
#include "PluginHost.h"
#include "TestSite.h"
#include "VirtualClock.h"
#include "Workbench.h"

/// A Workbench on a virtual clock, with a plug-in from a file and the small test site.
struct WorkbenchFixture
{
    explicit WorkbenchFixture(const QString &pluginFile, const Scenario &scenario = {})
        : host(pluginFile)
        , log(QString())
        , localSite(site(), clock)
        , workbench(host, nullptr, localSite.link(), &localSite, scenario, log, clock)
    { }

    static Site site()
    {
        Site site = testSite();
        site.stations.push_back(LocalStation::station());
        return site;
    }

    VirtualClock clock;
    PluginHost host;
    OperationalLogStore log;
    LocalSite localSite;
    Workbench workbench;
};

#endif
