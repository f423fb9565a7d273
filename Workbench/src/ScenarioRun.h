#ifndef SCENARIORUN_H
#define SCENARIORUN_H

#include "LocalSite.h"
#include "MetricsServer.h"
#include "OperationalLogStore.h"
#include "Options.h"
#include "PluginHost.h"
#include "Recording.h"
#include "ScaledClock.h"
#include "ServerLink.h"
#include "SnoozeStore.h"
#include "StandardOutput.h"
#include "Workbench.h"

#include <QCoreApplication>
#include <QQmlEngine>

#include <memory>

class Screenshot;

/// A scenario on a site with all that its run takes, as the options have it. What was set up first
/// goes last.
class ScenarioRun
{
    Q_DECLARE_TR_FUNCTIONS(ScenarioRun)

public:
    /// Throws InputError and HostError. Options, site and host must outlive the run.
    ///
    /// @param host has loaded the plug-in
    ScenarioRun(const Options &options, const Site &site, Scenario scenario, PluginHost &host);

    /// Runs the application, and returns its exit code. Throws InputError and HostError.
    int exec();

private:
    int playWithDashboard();
    int playHeadless(Screenshot *screenshot);

    const Options &m_options;
    const Site &m_site;
    std::unique_ptr<QQmlEngine> m_engine; // null when nothing is drawn
    ScaledClock m_clock;
    std::unique_ptr<Recording> m_recording; // null when the user wants no journal
    OperationalLogStore m_log;
    std::unique_ptr<SnoozeStore> m_store;
    std::unique_ptr<LocalSite> m_local;   // null when the site is another process's
    std::unique_ptr<ServerLink> m_remote; // null when the site is in this process
    Workbench m_workbench;
    std::unique_ptr<MetricsServer> m_metrics; // null when nobody asks for them
    StandardOutput m_out;
};

#endif
