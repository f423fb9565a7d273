#ifndef WORKBENCH_H
#define WORKBENCH_H

#include "ErrorListWatch.h"
#include "ErrorWait.h"
#include "Framework.h"
#include "OperationalLogPlugin.h"
#include "OperationalLogStore.h"
#include "PluginSurface.h"
#include "RecordingManagementPlugin.h"
#include "Scenario.h"
#include "ScenarioActor.h"
#include "ScenarioDriver.h"
#include "TopologyPlugin.h"

#include <memory>

class LocalSite;
class PluginHost;
class QQmlContext;
class ServerLink;

/// The stand-in host as a whole: a connection to a site's server, the plug-ins that the system
/// monitor pairs with, and the scenario that is played on them.
class Workbench : public QObject
{
    Q_OBJECT

public:
    /// @param host    has loaded the plug-in; it is initialised and paired here. It must outlive
    ///                the Workbench, as must the link, the site, the log and the clock
    /// @param context the QML context of the user interface, or null without one
    /// @param link    leads to the site's server
    /// @param site    the site, where its server is in this process, otherwise null: then the
    ///                scenario's events of the site are left out, and the states of all nodes have
    ///                been retrieved whenever the link has opened
    ///
    /// Throws HostError when the plug-in cannot be used.
    Workbench(PluginHost &host, QQmlContext *context, ServerLink &link, LocalSite *site,
              Scenario scenario, OperationalLogStore &log, Clock &clock);
    ~Workbench() override;

    Workbench(const Workbench &) = delete;
    Workbench &operator=(const Workbench &) = delete;

    /// Connects the server and, once it is connected, plays the scenario; again with the site as
    /// it was at first.
    void start();

    ServerLink &link() { return m_link; }
    Framework &framework() { return m_framework; }
    TopologyPlugin &topology() { return m_topology; }
    OperationalLogPlugin &logPlugin() { return m_logPlugin; }
    ScenarioDriver &driver() { return m_driver; }
    PluginSurface &surface() { return *m_surface; }
    const ErrorListWatch &errorWatch() const { return *m_errorWatch; }
    const ErrorWait &errorWait() const { return *m_errorWait; }

Q_SIGNALS:
    /// An event has come from the server, the plug-in is about to hear.
    void eventArrived(const QString &name, const QVariant &data, const QString &sourceId);
    /// A real station or camera does not answer, and counts as disconnected.
    void nodeLost(const QString &nodeId, const QString &reason);
    void nodeBack(const QString &nodeId);

private:
    void wirePlugins(QQmlContext *context);
    void wireServer();
    void wireSite(LocalSite &site);
    void takeSite();
    void perform(const AnyScenarioAction &action);

    PluginHost &m_host;
    ServerLink &m_link;
    LocalSite *const m_site; // or null
    Framework m_framework;
    TopologyPlugin m_topology;
    RecordingManagementPlugin m_recording;
    OperationalLogPlugin m_logPlugin;
    ScenarioDriver m_driver;
    std::unique_ptr<PluginSurface> m_surface;
    std::unique_ptr<ErrorListWatch> m_errorWatch;
    std::unique_ptr<ErrorWait> m_errorWait;
    std::unique_ptr<ScenarioActor> m_actor;
    bool m_isScenarioDue = false; // as soon as the server is connected
};

#endif
