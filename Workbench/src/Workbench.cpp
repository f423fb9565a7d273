#include "Workbench.h"

#include "PluginBase.h"
#include "PluginHost.h"
#include "PluginIds.h"

Workbench::Workbench(PluginHost &host, QQmlContext *context, const Site &site,
                     const Scenario &scenario, OperationalLogStore &log, Clock &clock)
    : m_host(host)
    , m_initialSite(site)
    , m_server(site, clock)
    , m_siteActor(m_server)
    , m_link(m_server)
    , m_framework([this](const QString &command, const QVariant &data, const QString &target) {
        return m_link.execute(command, data, target);
    })
    , m_recording(m_framework, m_link)
    , m_logPlugin(log, clock)
    , m_localStation(m_server, NetworkCounters())
    , m_driver(scenario, clock)
{
    wirePlugins(context);
    m_surface = std::make_unique<PluginSurface>(*host.plugin());
    m_errorWatch = std::make_unique<ErrorListWatch>(m_surface->errorModel());
    m_actor = std::make_unique<ScenarioActor>(
        ScenarioActor::Stage{&m_siteActor, m_link, m_topology, *m_surface, clock});
    wireServer();
    connect(m_surface.get(), &PluginSurface::clientResourceChanged, &m_localStation,
            &LocalStation::report);
    connect(&m_driver, &ScenarioDriver::due, this,
            [this](const AnyScenarioAction &action) { m_actor->perform(action); });
}

// The plug-in holds on to the framework and the topology model, so it goes before them.
Workbench::~Workbench()
{
    m_host.destroy();
}

void Workbench::start()
{
    m_link.close();
    m_server.reset(m_initialSite);
    m_link.open();
    m_driver.start();
}

void Workbench::wirePlugins(QQmlContext *context)
{
    m_framework.registerPlugin(PluginIds::Topology, &m_topology);
    m_framework.registerPlugin(PluginIds::RecordingManagement, &m_recording);
    m_framework.registerPlugin(PluginIds::OperationalLog, &m_logPlugin);
    m_host.initialise(context, m_framework);
    m_host.pair();
}

void Workbench::wireServer()
{
    connect(&m_link, &ServerLink::opened, this, [this] {
        m_topology.setSite(m_link.site());
        m_host.serverConnected();
    });
    connect(&m_link, &ServerLink::closed, this, [this] {
        m_topology.setSite({});
        m_host.serverDisconnected();
    });
    connect(&m_link, &ServerLink::nodeStatusChanged, &m_topology, &TopologyPlugin::setNodeStatus);
    connect(&m_link, &ServerLink::cameraRemoved, &m_topology, &TopologyPlugin::removeCamera);
    connect(&m_link, &ServerLink::stationRemoved, &m_topology, &TopologyPlugin::removeStation);
    connect(&m_link, &ServerLink::storageChanged, &m_recording,
            &RecordingManagementPlugin::reloadStorageUsageInfo);
    connect(&m_link, &ServerLink::eventRaised, this,
            [this](const QString &name, const QVariant &data, const QString &sourceId) {
                Q_EMIT eventArrived(name, data, sourceId);
                m_host.plugin()->EventProcessor(name, 0, 0, 0, data, sourceId);
            });
}
