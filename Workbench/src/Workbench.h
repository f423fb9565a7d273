#ifndef WORKBENCH_H
#define WORKBENCH_H

#include "ErrorListWatch.h"
#include "Framework.h"
#include "LocalStation.h"
#include "OperationalLogPlugin.h"
#include "OperationalLogStore.h"
#include "PluginSurface.h"
#include "RecordingManagementPlugin.h"
#include "Scenario.h"
#include "ScenarioActor.h"
#include "ScenarioDriver.h"
#include "ServerLink.h"
#include "SiteActor.h"
#include "SiteServer.h"
#include "TopologyPlugin.h"

#include <memory>

class PluginHost;
class QQmlContext;

/// The stand-in host as a whole: a site and its server, the plug-ins that the system monitor pairs
/// with, and the scenario that is played on them.
class Workbench : public QObject
{
    Q_OBJECT

public:
    /// @param host     has loaded the plug-in; it is initialised and paired here. It must outlive
    ///                 the Workbench, as must the clock and the log
    /// @param context  the QML context of the user interface, or null without one
    /// @param site     this machine among its stations
    ///
    /// Throws HostError when the plug-in cannot be used.
    Workbench(PluginHost &host, QQmlContext *context, const Site &site, const Scenario &scenario,
              OperationalLogStore &log, Clock &clock);
    ~Workbench() override;

    /// Connects the server and plays the scenario; again with the site as it was at first.
    void start();

    ServerLink &link() { return m_link; }
    Framework &framework() { return m_framework; }
    TopologyPlugin &topology() { return m_topology; }
    OperationalLogPlugin &logPlugin() { return m_logPlugin; }
    ScenarioDriver &driver() { return m_driver; }
    PluginSurface &surface() { return *m_surface; }
    const ErrorListWatch &errorWatch() const { return *m_errorWatch; }

Q_SIGNALS:
    /// An event has come from the server, the plug-in is about to hear.
    void eventArrived(const QString &name, const QVariant &data, const QString &sourceId);

private:
    void wirePlugins(QQmlContext *context);
    void wireServer();

    PluginHost &m_host;
    const Site m_initialSite;
    SiteServer m_server;
    SiteActor m_siteActor;
    ServerLink m_link;
    Framework m_framework;
    TopologyPlugin m_topology;
    RecordingManagementPlugin m_recording;
    OperationalLogPlugin m_logPlugin;
    LocalStation m_localStation;
    ScenarioDriver m_driver;
    std::unique_ptr<PluginSurface> m_surface;
    std::unique_ptr<ErrorListWatch> m_errorWatch;
    std::unique_ptr<ScenarioActor> m_actor;
};

#endif
